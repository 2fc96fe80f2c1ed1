// Drives the form by the lines of a script, in place of a user at a window.
#pragma once

#include <optional>
#include <ostream>
#include <vector>

#include "component/ModalRun.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "host/PropertyPrinter.h"
#include "host/ScriptEvents.h"
#include "host/ScriptFailure.h"
#include "host/ScriptPrompts.h"

namespace kestedit {

/// Runs each step through the form's event handlers and stops at the first that fails. A form that is open at the end
/// is cancelled.
class ScriptDriver final : public ModalRun {
  public:
    /// `prompts` must be those of the form's platform; it and `out` must outlive the driver.
    ScriptDriver(std::vector<ScriptStep> steps, ScriptPrompts& prompts, std::ostream& out);

    /// Runs the steps at the head of the script that only queue answers, so that questions which come up while the form
    /// loads find them. Call before the form is shown.
    void queueFirstAnswers();

    void run(frmEdit& form) override;

    /// The line that stopped the run, if one did.
    [[nodiscard]] const std::optional<ScriptFailure>& failure() const { return failure_; }

    // ---- for the table of verbs
    [[nodiscard]] ScriptPrompts& prompts() const { return prompts_; }
    /// While the form is shown.
    [[nodiscard]] PropertyPrinter printer() const { return {{*form_, dialog_}, out_}; }

  private:
    void runNewFolder(dlgNewFolder& dialog);
    void execute(const ScriptStep& step);
    [[nodiscard]] bool atEnd() const { return next_ == steps_.size(); }

    const std::vector<ScriptStep> steps_;
    std::size_t next_ = 0;
    ScriptPrompts& prompts_;
    std::ostream& out_;
    frmEdit* form_ = nullptr;         // not owned; set during run
    dlgNewFolder* dialog_ = nullptr;  // not owned; set while it stands in front
    std::optional<ScriptFailure> failure_;
};

}  // namespace kestedit
