#include "component/clsEdit.h"

#include <atomic>
#include <utility>

#include "editor/frmEdit.h"
#include "form/ComponentValues.h"

namespace kestedit {

namespace {

/// Marks the one editor that a process may show.
class RunningEditor {
  public:
    RunningEditor() {
        if (running_.exchange(true)) throw EditorOpen("an editor is open already");
    }
    ~RunningEditor() { running_ = false; }
    RunningEditor(const RunningEditor&) = delete;
    RunningEditor& operator=(const RunningEditor&) = delete;

  private:
    static inline std::atomic<bool> running_ = false;
};

}  // namespace

struct clsEdit::State {
    Platform& platform;
    ModalRun& driver;
    ComponentValues values;
};

clsEdit::clsEdit(Platform& platform, ModalRun& driver)
    : state_(std::make_unique<State>(State{platform, driver, ComponentValues{}})) {
    state_->values.Cancelled = false;
    state_->values.CancelCompanion = false;
}

clsEdit::~clsEdit() = default;

void clsEdit::JobFile(std::string path) {
    state_->values.JobFile = std::move(path);
}

void clsEdit::Mode(std::string mode) {
    state_->values.Mode = std::move(mode);
}

void clsEdit::View(std::int16_t view) {
    state_->values.View = view;
}

void clsEdit::AppTitle(std::string title) {
    state_->values.AppTitle = std::move(title);
}

void clsEdit::JobDir(std::string folder) {
    state_->values.JobDir = std::move(folder);
}

void clsEdit::INIFile(std::string path) {
    state_->values.INIFile = std::move(path);
}

void clsEdit::Language(std::string path) {
    state_->values.Language = std::move(path);
}

void clsEdit::PgmData(std::string data) {
    state_->values.PgmData = std::move(data);
}

void clsEdit::JobExtension(std::string extension) {
    state_->values.JobExtension = std::move(extension);
}

void clsEdit::HelpFile(std::string path) {
    state_->values.HelpFile = std::move(path);
}

void clsEdit::Show(std::int16_t start) {
    const RunningEditor running;
    state_->values.ViewLevel = std::to_string(start);
    {
        frmEdit form(state_->values, state_->platform);
        form.Load();
        state_->driver.run(form);
    }
    state_->driver.processPending();
    raiseEvent();
}

void clsEdit::raiseEvent() {
    if (state_->values.Cancelled) return;
    if (state_->values.Mode == "New") {
        if (SearchJobs) SearchJobs();
    } else if (SetNewValues) {
        std::string text;  // the host may write into it, and the next run says nothing of that
        SetNewValues(text);
    }
}

}  // namespace kestedit
