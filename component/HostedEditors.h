// The editors that hosts hold by handles.
#pragma once

#include <atomic>
#include <memory>

#include "component/CallbackDriver.h"
#include "component/LinuxPlatform.h"
#include "component/clsEdit.h"
#include "component/kestEdit.h"

namespace kestedit {

/// Passes the form and its questions on to whatever shows the present run.
class Relay final : public ModalRun, public Prompts {
  public:
    void connect(ModalRun* driver, Prompts* prompts) {
        driver_ = driver;
        prompts_ = prompts;
    }

    void run(frmEdit& form) override { driver_->run(form); }
    void processPending() override { driver_->processPending(); }

    Answer showMessage(const MessageBox& box) override { return prompts_->showMessage(box); }
    [[nodiscard]] std::optional<std::string> chooseFolder(const FolderRequest& request) override {
        return prompts_->chooseFolder(request);
    }
    [[nodiscard]] std::optional<std::string> chooseFile(const FileRequest& request) override {
        return prompts_->chooseFile(request);
    }
    void runNewFolder(dlgNewFolder& dialog) override { prompts_->runNewFolder(dialog); }

  private:
    ModalRun* driver_ = nullptr;
    Prompts* prompts_ = nullptr;
};

/// One object of the class, and what it needs to live.
struct HostedEditor {
    /// Shows the form by the host's callbacks, or else by the process's front end. Throws CallFailed when there is
    /// neither.
    void show(kestEdit_Handle handle, std::int16_t view);

    Relay relay;
    LinuxPlatform platform{relay};
    clsEdit editor{platform.services(), relay};
    Callbacks callbacks;
    std::atomic<bool> claimed = false;
};

[[nodiscard]] kestEdit_Handle addEditor(std::shared_ptr<HostedEditor> editor);
void removeEditor(kestEdit_Handle handle);
/// Throws CallFailed for a handle that no editor has.
[[nodiscard]] std::shared_ptr<HostedEditor> editorOf(kestEdit_Handle handle);

/// An editor for the time of one call. A call that comes while another has it (from inside an event, from another
/// thread) throws CallFailed.
class Claim {
  public:
    explicit Claim(kestEdit_Handle handle);
    ~Claim() { editor_->claimed = false; }
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

    HostedEditor* operator->() const { return editor_.get(); }

  private:
    std::shared_ptr<HostedEditor> editor_;
};

}  // namespace kestedit
