#include "component/clsEdit.h"

#include <stdexcept>

#include "editor/frmEdit.h"

namespace kestedit {

namespace {

/// Marks the one editor that a process may show.
class RunningEditor {
  public:
    RunningEditor() {
        if (running_) throw std::logic_error("an editor is open already");
        running_ = true;
    }
    ~RunningEditor() { running_ = false; }
    RunningEditor(const RunningEditor&) = delete;
    RunningEditor& operator=(const RunningEditor&) = delete;

  private:
    static inline bool running_ = false;
};

}  // namespace

clsEdit::clsEdit(Platform& platform, ModalRun& driver) : platform_(platform), driver_(driver) {
    values_.Cancelled = false;
    values_.CancelCompanion = false;
}

void clsEdit::Show(std::int16_t start) {
    const RunningEditor running;
    values_.ViewLevel = std::to_string(start);
    {
        frmEdit form(values_, platform_);
        form.Load();
        driver_.run(form);
    }
    driver_.processPending();
    raiseEvent();
}

void clsEdit::raiseEvent() {
    if (values_.Cancelled) return;
    if (values_.Mode == "New") {
        if (SearchJobs) SearchJobs();
    } else if (SetNewValues) {
        SetNewValues(values_.SetNewValuesArgument);
    }
}

}  // namespace kestedit
