// Drives the form by the callbacks of a host in C.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "component/ModalRun.h"
#include "component/kestEdit.h"
#include "platform/Prompts.h"

namespace kestedit {

/// The functions of kestEdit_setDriver and of kestEdit_setChoosers.
struct Callbacks {
    kestEdit_Run run = nullptr;
    kestEdit_Ask ask = nullptr;
    void* user = nullptr;

    kestEdit_Choose folder = nullptr;
    kestEdit_Choose file = nullptr;
    kestEdit_Run newFolder = nullptr;
    void* chooserUser = nullptr;
};

/// One run of one editor. kestEdit.h says what the callbacks may do.
class CallbackDriver final : public ModalRun, public Prompts {
  public:
    CallbackDriver(kestEdit_Handle editor, const Callbacks& callbacks) : editor_(editor), callbacks_(callbacks) {}

    /// The driver whose run() this thread is in, if it shows `editor`; otherwise null.
    [[nodiscard]] static CallbackDriver* runningHere(kestEdit_Handle editor);

    /// Hands one event to the window in front; kestEdit.h says which of `name` and `text` its verb takes. Throws
    /// CallFailed while a question waits, UnknownName, WrongWord, and what the form throws.
    void event(std::string_view verb, const char* name, const char* text);
    /// A property in its printed form. Throws what propertyText throws.
    [[nodiscard]] std::string text(std::string_view property) const;

    void run(frmEdit& form) override;

    Answer showMessage(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(const FolderRequest& request) override;
    [[nodiscard]] std::optional<std::string> chooseFile(const FileRequest& request) override;
    void runNewFolder(dlgNewFolder& dialog) override;

  private:
    [[nodiscard]] std::optional<std::string> choose(kestEdit_Choose chooser, const std::string& title,
                                                    const std::string& from) const;

    kestEdit_Handle editor_;
    Callbacks callbacks_;
    frmEdit* form_ = nullptr;         // not owned; set during run
    dlgNewFolder* dialog_ = nullptr;  // not owned; set while it stands in front
    bool inEvent_ = false;
};

}  // namespace kestedit
