// Runs the editor as a window of the desktop.
#pragma once

#include <memory>

#include "component/ModalRun.h"
#include "desktop/DesktopPrompts.h"

class QApplication;

namespace kestedit {

/// The driver that a host gives to clsEdit, and the prompts that go with it into the Platform. Works inside a host that
/// has a QApplication, and brings one of its own, for its lifetime, into a host that has none. Lives on the thread of
/// the user interface.
class DesktopRun final : public ModalRun {
  public:
    /// Throws std::logic_error when the host's application is one without windows.
    DesktopRun();
    ~DesktopRun() override;

    [[nodiscard]] DesktopPrompts& prompts() { return prompts_; }

    /// Shows the form, without an owner window, until it has closed. An application that quits meanwhile closes it like
    /// its close box.
    void run(frmEdit& form) override;
    void processPending() override;

    /// Whether windows can come up here: a display, or a platform that was asked for by name.
    [[nodiscard]] static bool hasDisplay();

  private:
    class OwnApplication;

    std::unique_ptr<OwnApplication> application_;  // null in a host with one
    DesktopPrompts prompts_;
};

}  // namespace kestedit
