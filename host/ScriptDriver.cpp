#include "host/ScriptDriver.h"

#include <utility>

namespace kestedit {

namespace {

/// Holds a pointer to what is open, and forgets it however its scope ends.
template <class Window>
class OpenWindowMark {
  public:
    OpenWindowMark(Window*& place, Window& window) : place_(place) { place_ = &window; }
    ~OpenWindowMark() { place_ = nullptr; }
    OpenWindowMark(const OpenWindowMark&) = delete;
    OpenWindowMark& operator=(const OpenWindowMark&) = delete;

  private:
    Window*& place_;
};

}  // namespace

ScriptDriver::ScriptDriver(std::vector<ScriptStep> steps, ScriptPrompts& prompts, std::ostream& out)
    : steps_(std::move(steps)), prompts_(prompts), out_(out) {
    prompts_.newFolderRun = [this](dlgNewFolder& dialog) { runNewFolder(dialog); };
}

void ScriptDriver::queueFirstAnswers() {
    const auto isAnswer = [](const ScriptStep& step) { return step.own && step.own->answers; };
    while (!atEnd() && isAnswer(steps_[next_]))
        execute(steps_[next_++]);
}

void ScriptDriver::run(frmEdit& form) {
    const OpenWindowMark mark(form_, form);
    try {
        while (!atEnd())
            execute(steps_[next_++]);
    } catch (const ScriptFailure& failure) {
        failure_ = failure;
    }
    if (form.isOpen()) form.onCommand(form.cmdCancel);
}

void ScriptDriver::runNewFolder(dlgNewFolder& dialog) {
    const OpenWindowMark mark(dialog_, dialog);
    while (dialog.isOpen() && !atEnd())
        execute(steps_[next_++]);
    if (dialog.isOpen()) dialog.onCloseBox();
}

void ScriptDriver::execute(const ScriptStep& step) {
    try {
        if (step.event) return perform(*step.event, {*form_, dialog_}, step.arguments);
        if (step.own) return step.own->run(*this, step.arguments);
        throw ScriptFailure(step.line, step.fault);
    } catch (const ScriptFailure&) {
        throw;  // this line's own, or that of a line of the dialog that it has opened
    } catch (const std::exception& fault) {
        throw ScriptFailure(step.line, fault.what());
    }
}

}  // namespace kestedit
