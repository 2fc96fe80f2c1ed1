// An editor to measure: a folder of its own, the real system around it, and nobody who answers questions.
#pragma once

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/Folder.h"
#include "component/clsEdit.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "platform/Platform.h"

namespace kestedit::bench {

class NoPrompts final : public Prompts {
  public:
    Answer showMessage(const MessageBox& box) override { throw std::runtime_error(box.text); }
    std::optional<std::string> chooseFolder(const FolderRequest&) override { return std::nullopt; }
    std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
    void runNewFolder(dlgNewFolder& dialog) override { dialog.onCloseBox(); }
};

/// Does something with the loaded form, then cancels it.
class Driver final : public ModalRun {
  public:
    explicit Driver(std::function<void(frmEdit&)> work) : work_(std::move(work)) {}
    void run(frmEdit& form) override {
        work_(form);
        if (form.isOpen()) form.onCommand(form.cmdCancel);
    }

  private:
    std::function<void(frmEdit&)> work_;
};

class Editor {
  public:
    /// Shows the editor in that mode; "Edit" opens the job "full" of the folder.
    void show(const char* mode, std::function<void(frmEdit&)> work) {
        Driver driver(std::move(work));
        clsEdit editor(platform_, driver);
        editor.Mode(mode);
        editor.JobDir(folder_);
        editor.JobFile(folder_ / "full.job");
        editor.JobExtension(".job");
        editor.INIFile(folder_ / "program.ini");
        editor.Language(KESTEDIT_LANG_DIR "/german.lng");
        editor.Show(4);
    }

  private:
    const Folder own_;
    const std::filesystem::path& folder_ = own_.path();
    IniStore ini_;
    LocalFileSystem files_;
    SystemClock clock_;
    DateFormat dates_{"dd.MM.yyyy"};
    NoPrompts prompts_;
    UserSettingsFile settings_{folder_ / "user.ini"};
    Platform platform_{ini_, files_, clock_, dates_, prompts_, settings_};
};

}  // namespace kestedit::bench
