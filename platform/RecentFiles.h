// The INI files that were read last, so that many reads of a file cost one look at the disk.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/CodePage.h"
#include "platform/IniText.h"

namespace kestedit {

using SharedText = std::shared_ptr<const IniText>;

/// Keeps up to sixteen files and some megabytes, each for as long as it stands unchanged on disk.
class RecentFiles {
  public:
    /// `page` is that of every file that has none of its own.
    explicit RecentFiles(CodePage page) : page_(page) {}

    /// The file for reading: as it is now, or as it was when the running scope first looked at it. Its page is the one
    /// told, or with `recognise` what CodePage::recognise makes of it. Throws std::system_error.
    SharedText get(const std::filesystem::path& file, bool recognise) { return get(file, recognise, true); }

    /// The file for changing, as it is now whatever a scope has seen. Throws std::system_error.
    SharedText getForChange(const std::filesystem::path& file, bool recognise) { return get(file, recognise, false); }

    void forget(const std::filesystem::path& file);

    void setPage(const std::filesystem::path& file, const CodePage& page);
    [[nodiscard]] const CodePage& pageOf(const std::filesystem::path& file) const;

    /// Scopes may stand one inside another; the outermost counts.
    void enterScope();
    void leaveScope();

  private:
    struct Entry {
        std::string path;
        bool recognise = false;  // how the page of the text was found
        SharedText text;
        std::uint64_t scope = 0;  // in which the disk was last looked at
    };

    SharedText get(const std::filesystem::path& file, bool recognise, bool trustScope);
    [[nodiscard]] bool isTrusted(const Entry& entry) const;
    void forgetOldest();

    CodePage page_;
    std::map<std::string, CodePage> ownPages_;
    std::vector<Entry> files_;  // the one used last comes first
    std::uint64_t scope_ = 0;   // the newest scope, running or ended
    int depth_ = 0;             // scopes that run, one inside another
};

}  // namespace kestedit
