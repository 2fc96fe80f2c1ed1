// The editor's window, for hosts that load it from the library kestEditDesktop.
#pragma once

#include <memory>

#include "component/FrontEnd.h"
#include "platform/Export.h"

namespace kestedit {

/// The window and its message boxes. Works inside a host that has a QApplication, and brings one of its own, for its
/// lifetime, into a host that has none. Make and use it on the thread of the user interface. Throws std::runtime_error
/// when no display can be reached.
[[nodiscard]] KESTEDIT_EXPORT std::unique_ptr<FrontEnd> desktopFrontEnd();

}  // namespace kestedit
