// The component's one creatable class: a host assigns its properties and calls Show.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "component/ModalRun.h"
#include "platform/Export.h"
#include "platform/Platform.h"

namespace kestedit {

/// An editor is open already: there is one at a time in a process.
class KESTEDIT_EXPORT EditorOpen : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

/// kestEdit.clsEdit, the job editor as hosts see it.
///
/// Properties are write-only and keep their values between two calls of Show, and so do the effects of a run: Save may
/// change Mode and JobFile, and after one Cancel no later run on the same object raises an event. Assign every property
/// again before each Show. Texts are UTF-8; a path may be any bytes that the file system takes.
class KESTEDIT_EXPORT clsEdit {
  public:
    /// Neither is owned; both must outlive the object. LinuxPlatform is the usual platform; the driver that shows the
    /// window is in the library kestEditDesktop.
    clsEdit(Platform& platform, ModalRun& driver);
    ~clsEdit();
    clsEdit(const clsEdit&) = delete;
    clsEdit& operator=(const clsEdit&) = delete;

    void JobFile(std::string path);
    /// "New" creates a job, "Edit" opens one; any other text shows the editor without loading or saving. Case counts.
    void Mode(std::string mode);
    void View(std::int16_t view);
    void AppTitle(std::string title);
    void JobDir(std::string folder);
    void INIFile(std::string path);
    void Language(std::string path);
    void PgmData(std::string data);
    void JobExtension(std::string extension);
    void HelpFile(std::string path);

    /// Raised after a run in a mode other than "New" that was not cancelled. The text is always empty.
    std::function<void(std::string& text)> SetNewValues;
    /// Raised after a run that ended in Mode "New" and was not cancelled: the host looks for the job file in its
    /// folder.
    std::function<void()> SearchJobs;

    /// Runs the editor and returns when it has closed; the event, if any, is raised before that. `start` is the view
    /// level: 4 for the complete editor, 9, 15 or 23 for a reduced one. Failures of the platform come out as
    /// std::system_error; a call while an editor is open, from inside an event too, throws EditorOpen.
    void Show(std::int16_t start);

  private:
    void raiseEvent();

    // Behind a pointer, so that a host keeps working when the library gains a property.
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace kestedit
