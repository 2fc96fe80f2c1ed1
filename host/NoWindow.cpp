// The program without a window.
#include "host/Window.h"

namespace kestedit {

std::unique_ptr<FrontEnd> openWindow() {
    throw NoWindow("this program was built without a window; \"kestedit script\" edits jobs without one");
}

}  // namespace kestedit
