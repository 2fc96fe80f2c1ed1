// What opening the editor costs without a window: Show from the creation of the form to the moment where it is ready,
// with a full job and a language file, and the rule pass alone.
#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <thread>
#include <unistd.h>

#include "component/clsEdit.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "editor/rules/RefreshPageStates.h"
#include "platform/Platform.h"

namespace {

namespace fs = std::filesystem;
using namespace kestedit;

/// Nobody is there to answer.
class NoPrompts final : public Prompts {
  public:
    Answer showMessage(const MessageBox& box) override { throw std::runtime_error(box.text); }
    std::optional<std::string> chooseFolder(const FolderRequest&) override { return std::nullopt; }
    std::optional<std::string> chooseFile(const FileRequest&) override { return std::nullopt; }
    void runNewFolder(dlgNewFolder& dialog) override { dialog.onCloseBox(); }
};

/// Does something with the loaded form, then closes it.
template <typename Work>
class Driver final : public ModalRun {
  public:
    explicit Driver(Work work) : work_(std::move(work)) {}
    void run(frmEdit& form) override {
        work_(form);
        form.onCommand(form.cmdCancel);
    }

  private:
    Work work_;
};

/// A folder with a saved job, and everything that an editor needs to open it.
class Bench {
  public:
    Bench() : folder_(fs::temp_directory_path() / ("kestedit-show-" + std::to_string(getpid()))) {
        fs::create_directories(folder_);
        show("New", [](frmEdit& form) {
            form.onTextTyped(form.dxName, "full");
            form.onCommand(form.cmdSave);
        });
        // A file that has just changed is looked at again with every read; files in use are older.
        std::this_thread::sleep_for(std::chrono::milliseconds{100});
    }
    ~Bench() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    template <typename Work>
    void show(const char* mode, Work work) {
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
    fs::path folder_;
    IniStore ini_;
    LocalFileSystem files_;
    SystemClock clock_;
    DateFormat dates_{"dd.MM.yyyy"};
    NoPrompts prompts_;
    UserSettingsFile settings_{folder_ / "user.ini"};
    Platform platform_{ini_, files_, clock_, dates_, prompts_, settings_};
};

void showNewJob(benchmark::State& state) {
    Bench bench;
    for (auto round : state)
        bench.show("New", [](frmEdit& form) { benchmark::DoNotOptimize(form.Caption); });
}
BENCHMARK(showNewJob)->Unit(benchmark::kMicrosecond);

void showFullJob(benchmark::State& state) {
    Bench bench;
    for (auto round : state)
        bench.show("Edit", [](frmEdit& form) { benchmark::DoNotOptimize(form.Caption); });
}
BENCHMARK(showFullJob)->Unit(benchmark::kMicrosecond);

void rulePass(benchmark::State& state) {
    Bench bench;
    bench.show("Edit", [&state](frmEdit& form) {
        for (auto round : state)
            RefreshPageStates(form, "all", 4, 0);
    });
}
BENCHMARK(rulePass)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
