// One opening of the editor as the program's options ask for it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "component/ModalRun.h"
#include "host/Command.h"
#include "platform/Platform.h"

namespace kestedit {

/// Owns the services behind the editor and plays the host of the component: assigns its properties, shows it, hears its
/// event.
class EditorSession {
  public:
    /// `prompts` must outlive the session. Throws std::system_error when the job to be edited cannot be read.
    EditorSession(EditorOptions options, Prompts& prompts);

    /// Runs the editor until it has closed. Creates the folder of new jobs when it is the default and missing. Throws
    /// what the editor throws, and std::runtime_error when the job could not be loaded.
    void show(ModalRun& driver);

    /// The event that the last run raised: `SearchJobs`, `SetNewValues ""` or `none`.
    [[nodiscard]] const std::string& event() const { return event_; }

  private:
    [[nodiscard]] std::string jobFolder() const;
    [[nodiscard]] std::string ownLanguageFile();
    [[nodiscard]] std::string settingsFile() const;

    EditorOptions options_;
    IniStore ini_;
    LocalFileSystem files_;
    std::unique_ptr<Clock> clock_;
    DateFormat dates_;
    UserSettingsFile settings_;
    Platform platform_;
    std::string event_ = "none";
};

}  // namespace kestedit
