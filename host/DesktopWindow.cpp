// The program with a window.
#include "desktop/DesktopFrontEnd.h"
#include "host/Window.h"

namespace kestedit {

std::unique_ptr<FrontEnd> openWindow() {
    try {
        return desktopFrontEnd();
    } catch (const std::runtime_error& reason) {
        throw NoWindow(std::string{reason.what()} + "; \"kestedit script\" edits jobs without one");
    }
}

}  // namespace kestedit
