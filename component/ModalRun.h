// The modal run of the form: what a driver does between the moment the form is loaded and the moment it has closed.
#pragma once

#include "platform/Export.h"

namespace kestedit {

class frmEdit;

/// A driver of the form: the desktop window, the script driver, a test.
class KESTEDIT_EXPORT ModalRun {
  public:
    virtual ~ModalRun() = default;

    /// Shows the loaded form and hands it the user's events until `form.isOpen()` is false. The one-shot timer is fired
    /// by the driver once the form is visible (frmEdit::onTimer).
    virtual void run(frmEdit& form) = 0;

    /// Lets window messages that are still pending be handled once, after the form is gone.
    virtual void processPending() {}
};

}  // namespace kestedit
