#include "platform/FileSystem.h"

#include <atomic>
#include <cerrno>
#include <future>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <type_traits>
#include <unistd.h>
#include <utility>

namespace kestedit {

namespace fs = std::filesystem;

namespace {

fs::file_status statusOf(const fs::path& path, const char* operation) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::none) throw fs::filesystem_error(operation, path, error);
    return status;
}

void check(int result, const char* operation, const fs::path& path) {
    if (result != 0) throw fs::filesystem_error(operation, path, std::error_code(errno, std::system_category()));
}

/// Looks that have not come back yet. A mount that never answers must not cost a thread for every question.
std::atomic<int> looksUnderWay{0};
constexpr int maximumLooks = 8;

/// What `look` returns, or nothing when that takes longer than `patience`. `look` owns all that it uses, because it may
/// run on after this call has given up.
template <class Look>
std::optional<std::invoke_result_t<Look>> answerWithin(std::chrono::milliseconds patience, Look look) {
    if (looksUnderWay.fetch_add(1) >= maximumLooks) {
        --looksUnderWay;
        return std::nullopt;
    }
    using Answer = std::invoke_result_t<Look>;
    std::packaged_task<Answer()> task([look = std::move(look)] {
        Answer answer = look();
        --looksUnderWay;
        return answer;
    });
    std::future<Answer> answer = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        --looksUnderWay;
        return std::nullopt;
    }
    if (answer.wait_for(patience) != std::future_status::ready) return std::nullopt;
    return answer.get();
}

FolderStatus lookAtFolder(const fs::path& folder) {
    struct stat status {};
    FolderStatus found;
    found.exists = ::stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    found.readable = found.exists && ::access(folder.c_str(), R_OK | X_OK) == 0;
    found.writable = found.exists && ::access(folder.c_str(), W_OK) == 0;
    return found;
}

/// "/a/b/" and "/a/b" are one folder.
fs::path withoutSeparatorAtEnd(const fs::path& path) {
    return path.has_filename() || !path.has_relative_path() ? path : path.parent_path();
}

}  // namespace

bool LocalFileSystem::FileExists(const fs::path& file) const {
    const fs::file_status status = statusOf(file, "look for file");
    return fs::exists(status) && !fs::is_directory(status);
}

bool LocalFileSystem::FolderExists(const fs::path& folder) const {
    return fs::is_directory(statusOf(folder, "look for folder"));
}

void LocalFileSystem::DeleteFile(const fs::path& file) const {
    check(::unlink(file.c_str()), "delete file", file);
}

void LocalFileSystem::CreateFolder(const fs::path& folder) const {
    check(::mkdir(folder.c_str(), 0777), "create folder", folder);
}

std::string LocalFileSystem::BuildPath(std::string_view folder, std::string_view name) const {
    if (folder.empty()) return std::string(name);
    if (name.empty()) return std::string(folder);
    while (folder.ends_with('/'))
        folder.remove_suffix(1);
    while (name.starts_with('/'))
        name.remove_prefix(1);
    std::string path(folder);
    path += '/';
    path += name;
    return path;
}

std::string LocalFileSystem::GetFileName(std::string_view path) const {
    while (path.ends_with('/'))
        path.remove_suffix(1);
    return std::string(path.substr(path.rfind('/') + 1));
}

FolderStatus LocalFileSystem::inspectFolder(const fs::path& folder, std::chrono::milliseconds patience) const {
    FolderStatus silent;
    silent.answered = false;
    return answerWithin(patience, [folder] { return lookAtFolder(folder); }).value_or(silent);
}

fs::path LocalFileSystem::resolve(const fs::path& path, std::chrono::milliseconds patience) const {
    if (path.empty()) return path;
    const auto look = [path] {
        std::error_code error;
        fs::path absolute = fs::absolute(path, error);
        if (!error) absolute = fs::weakly_canonical(absolute, error);
        return error ? fs::path{} : absolute;
    };
    const fs::path resolved = answerWithin(patience, look).value_or(fs::path{});
    return withoutSeparatorAtEnd(resolved.empty() ? path.lexically_normal() : resolved);
}

}  // namespace kestedit
