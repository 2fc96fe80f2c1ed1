// The platform that most hosts want: this machine, for the user who runs the process.
#pragma once

#include <memory>

#include "platform/Export.h"
#include "platform/Platform.h"

namespace kestedit {

/// Owns the services behind an editor: files and clock of the machine, dates in the form of the user's locale
/// (LC_TIME), settings in the user's configuration folder. A host that wants one of them another way copies the bundle
/// and puts its own service in the place.
class KESTEDIT_EXPORT LinuxPlatform {
  public:
    /// `prompts` puts the editor's questions to the user; it is not owned and must outlive the object. `codePage` is
    /// that of all INI files: 1252, another single-byte page that iconv knows, or 65001 for UTF-8. Throws
    /// std::invalid_argument for any other.
    explicit LinuxPlatform(Prompts& prompts, int codePage = CodePage::western);
    ~LinuxPlatform();
    LinuxPlatform(const LinuxPlatform&) = delete;
    LinuxPlatform& operator=(const LinuxPlatform&) = delete;

    /// Lives as long as the object.
    [[nodiscard]] Platform& services();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace kestedit
