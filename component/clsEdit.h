// The component's one public class: a host creates it, assigns its properties and calls Show.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "component/ModalRun.h"
#include "persistence/ComponentValues.h"
#include "platform/Platform.h"

namespace kestedit {

/// kestEdit.clsEdit, the job editor as hosts see it.
///
/// Properties are write-only and keep their values between two calls of Show, and so do the effects of a run: Save may
/// change Mode and JobFile, and after one Cancel no later run on the same object raises an event. Assign every property
/// again before each Show. One editor at a time in a process.
class clsEdit {
  public:
    /// Neither is owned; both must outlive the object.
    clsEdit(Platform& platform, ModalRun& driver);

    void JobFile(std::string path) { values_.JobFile = std::move(path); }
    /// "New" creates a job, "Edit" opens one; any other text shows the editor without loading or saving. Case counts.
    void Mode(std::string mode) { values_.Mode = std::move(mode); }
    void View(std::int16_t view) { values_.View = view; }
    void AppTitle(std::string title) { values_.AppTitle = std::move(title); }
    void JobDir(std::string folder) { values_.JobDir = std::move(folder); }
    void INIFile(std::string path) { values_.INIFile = std::move(path); }
    void Language(std::string path) { values_.Language = std::move(path); }
    void PgmData(std::string data) { values_.PgmData = std::move(data); }
    void JobExtension(std::string extension) { values_.JobExtension = std::move(extension); }
    void HelpFile(std::string path) { values_.HelpFile = std::move(path); }

    /// Raised after a run in a mode other than "New" that was not cancelled. The text is always empty.
    std::function<void(std::string& text)> SetNewValues;
    /// Raised after a run that ended in Mode "New" and was not cancelled: the host looks for the job file in its
    /// folder.
    std::function<void()> SearchJobs;

    /// Runs the editor and returns when it has closed; the event, if any, is raised before that. `start` is the view
    /// level: 4 for the complete editor, 9, 15 or 23 for a reduced one. Failures of the platform come out as
    /// std::system_error; a second call while one is running throws std::logic_error.
    void Show(std::int16_t start);

  private:
    void raiseEvent();

    Platform& platform_;
    ModalRun& driver_;
    ComponentValues values_;
};

}  // namespace kestedit
