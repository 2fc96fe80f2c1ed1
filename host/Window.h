// The window of this build of the program, if it has one.
#pragma once

#include <memory>
#include <stdexcept>

#include "component/FrontEnd.h"

namespace kestedit {

/// There is no window to show the editor in; says why.
class NoWindow : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Throws NoWindow when the program was built without a window, and when no display can be reached.
[[nodiscard]] std::unique_ptr<FrontEnd> openWindow();

}  // namespace kestedit
