// A host on the console: it drives the editor's form itself, without a window.
//   host-plain FOLDER NAME SOURCE DESTINATION     creates the job NAME in FOLDER, then opens it again and shows it
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <kestEdit/component/LinuxPlatform.h>
#include <kestEdit/component/clsEdit.h>
#include <kestEdit/editor/dlgNewFolder.h>
#include <kestEdit/editor/frmEdit.h>
#include <string>

namespace {

/// Nobody sits at a console host: questions are printed and get their careful answer.
class ConsolePrompts final : public kestedit::Prompts {
  public:
    kestedit::Answer showMessage(const kestedit::MessageBox& box) override {
        std::cout << box.title << ": " << box.text << '\n';
        switch (box.buttons) {
            case kestedit::Buttons::ok:
                return kestedit::Answer::ok;
            case kestedit::Buttons::yesNo:
                return kestedit::Answer::no;
            default:
                return kestedit::Answer::cancel;
        }
    }
    std::optional<std::string> chooseFolder(const kestedit::FolderRequest&) override { return std::nullopt; }
    std::optional<std::string> chooseFile(const kestedit::FileRequest&) override { return std::nullopt; }
    void runNewFolder(kestedit::dlgNewFolder& dialog) override { dialog.onCloseBox(); }
};

/// Hands the loaded form the events that a user would cause.
class Driver final : public kestedit::ModalRun {
  public:
    std::function<void(kestedit::frmEdit&)> events;

    void run(kestedit::frmEdit& form) override {
        events(form);
        if (form.isOpen()) form.onCommand(form.cmdCancel);
    }
};

void host(const std::filesystem::path& folder, const std::string& name, const std::string& source,
          const std::string& destination) {
    ConsolePrompts prompts;
    Driver driver;
    kestedit::LinuxPlatform platform(prompts);
    kestedit::clsEdit editor(platform.services(), driver);
    editor.AppTitle("Console host");
    editor.JobDir(folder);
    editor.JobExtension(".job");
    editor.INIFile(folder / "host.ini");
    editor.Language(LANGUAGE_FOLDER "/english.lng");
    editor.SearchJobs = [] { std::cout << "event: a new job\n"; };
    editor.SetNewValues = [](std::string&) { std::cout << "event: the job has changed\n"; };

    editor.Mode("New");
    driver.events = [&](kestedit::frmEdit& form) {
        form.onTextTyped(form.dxName, name);
        form.onTextTyped(form.dxSource, source);
        form.onTextTyped(form.dxDest, destination);
        form.onCommand(form.cmdSave);
    };
    editor.Show(4);

    editor.Mode("Edit");
    editor.JobFile(folder / (name + ".job"));
    driver.events = [](kestedit::frmEdit& form) {
        std::cout << form.Caption << '\n' << form.dxSource.text() << " -> " << form.dxDest.text() << '\n';
    };
    editor.Show(9);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        std::cerr << "host-plain FOLDER NAME SOURCE DESTINATION\n";
        return 2;
    }
    try {
        host(argv[1], argv[2], argv[3], argv[4]);
    } catch (const std::exception& failure) {
        std::cerr << "host-plain: " << failure.what() << '\n';
        return 1;
    }
}
