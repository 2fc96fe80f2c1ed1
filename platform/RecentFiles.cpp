#include "platform/RecentFiles.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <sys/stat.h>
#include <utility>

namespace kestedit {

namespace fs = std::filesystem;

namespace {

bool isCurrent(const std::string& path, const FileContent& content) {
    struct stat status {};
    return content.isSettled() && ::stat(path.c_str(), &status) == 0 && content.identity() == FileIdentity(status);
}

}  // namespace

void RecentFiles::forget(const fs::path& file) {
    std::erase_if(files_, [&](const Entry& entry) { return entry.path == file.native(); });
}

void RecentFiles::setPage(const fs::path& file, const CodePage& page) {
    ownPages_.insert_or_assign(file.native(), page);
}

const CodePage& RecentFiles::pageOf(const fs::path& file) const {
    const auto own = ownPages_.find(file.native());
    return own == ownPages_.end() ? page_ : own->second;
}

void RecentFiles::enterScope() {
    if (depth_++ == 0) ++scope_;
}

void RecentFiles::leaveScope() {
    --depth_;
}

SharedText RecentFiles::get(const fs::path& file, bool recognise, bool trustScope) {
    const auto known = std::ranges::find_if(
        files_, [&](const Entry& entry) { return entry.path == file.native() && entry.recognise == recognise; });
    if (known != files_.end()) {
        if ((trustScope && isTrusted(*known)) || isCurrent(known->path, *known->text->content())) {
            known->scope = scope_;
            std::rotate(files_.begin(), known, known + 1);
            return files_.front().text;
        }
        files_.erase(known);
    }
    FileContent content = FileContent::read(file);
    const std::string_view bytes = content.bytes();
    const CodePage page = recognise ? pageOf(file).recognise({&bytes, 1}) : pageOf(file);
    SharedText text = std::make_shared<const IniText>(page, std::move(content));
    files_.insert(files_.begin(), {file.native(), recognise, text, scope_});
    forgetOldest();
    return text;
}

bool RecentFiles::isTrusted(const Entry& entry) const {
    return depth_ > 0 && entry.scope == scope_;
}

void RecentFiles::forgetOldest() {
    constexpr std::size_t mostFiles = 16;
    constexpr std::size_t mostBytes = std::size_t{32} << 20U;
    std::size_t bytes = 0;
    std::size_t kept = 0;
    while (kept < files_.size() && kept < mostFiles && (kept == 0 || bytes < mostBytes)) {
        bytes += files_[kept++].text->bytes().size();
    }
    files_.resize(kept);
}

}  // namespace kestedit
