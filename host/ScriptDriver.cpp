#include "host/ScriptDriver.h"

#include <stdexcept>
#include <string>
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
    const auto isAnswer = [](const ScriptStep& step) {
        return step.event && step.event->role == ScriptEvent::Role::answer;
    };
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
    if (!step.event) throw ScriptFailure(step.line, step.fault);
    try {
        requireOpen(step.event->role);
        step.event->run(*this, step.arguments);
    } catch (const ScriptFailure&) {
        throw;  // a line of the dialog that this line has opened
    } catch (const std::exception& fault) {
        throw ScriptFailure(step.line, fault.what());
    }
}

void ScriptDriver::requireOpen(ScriptEvent::Role role) const {
    using Role = ScriptEvent::Role;
    if (role != Role::formEvent && role != Role::windowEvent) return;
    if (!form_->isOpen()) throw std::invalid_argument("the form has closed");
    if (role == Role::formEvent && dialog_) throw std::invalid_argument("dlgNewFolder is in front of the form");
}

EditorControl& ScriptDriver::control(std::string_view name) const {
    const ControlRegistry* const registry = dialog_ ? static_cast<const ControlRegistry*>(dialog_) : form_;
    return registry->at(name);
}

EditorControl& ScriptDriver::member(std::string_view group, int index) const {
    for (EditorControl* candidate : form_->group(group)) {
        if (candidate->Member == index) return *candidate;
    }
    throw std::invalid_argument("no control named " + std::string(group) + '(' + std::to_string(index) + ')');
}

}  // namespace kestedit
