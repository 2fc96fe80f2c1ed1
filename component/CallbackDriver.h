// Drives the form by the callbacks of a host in C.
#pragma once

#include <string_view>

#include "component/ModalRun.h"
#include "component/kestEdit.h"
#include "platform/Prompts.h"

namespace kestedit {

/// The functions of kestEdit_setDriver.
struct Callbacks {
    kestEdit_Run run = nullptr;
    kestEdit_Ask ask = nullptr;
    void* user = nullptr;
};

/// One run of one editor. kestEdit.h says what the callbacks may do.
class CallbackDriver final : public ModalRun, public Prompts {
  public:
    CallbackDriver(kestEdit_Handle editor, const Callbacks& callbacks) : editor_(editor), callbacks_(callbacks) {}

    /// The driver whose run() this thread is in, if it shows `editor`; otherwise null.
    [[nodiscard]] static CallbackDriver* runningHere(kestEdit_Handle editor);

    /// Hands one event to the form. Throws CallFailed for what the host got wrong, and what the form throws.
    void event(std::string_view verb, std::string_view control, std::string_view text);

    void run(frmEdit& form) override;

    Answer showMessage(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(const FolderRequest&) override { return std::nullopt; }
    [[nodiscard]] std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
    void runNewFolder(dlgNewFolder& dialog) override;

  private:
    kestEdit_Handle editor_;
    Callbacks callbacks_;
    frmEdit* form_ = nullptr;  // not owned; set during run
    bool inEvent_ = false;
};

}  // namespace kestedit
