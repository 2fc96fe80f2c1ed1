// The queries of the script language: what the form shows, as lines of text.
#pragma once

#include <ostream>
#include <string_view>

#include "component/events/OpenWindows.h"

namespace kestedit {

/// Prints a form and, while it stands in front, the new-folder dialog.
class PropertyPrinter {
  public:
    /// `out` must outlive the printer.
    PropertyPrinter(const OpenWindows& windows, std::ostream& out) : windows_(windows), out_(out) {}

    /// `NAME.PROPERTY = VALUE`, the name as the script has it. Throws what propertyText throws.
    void print(std::string_view name) const;
    /// `node POSITION "TITLE" "IMAGE"`, ` *` behind the focused one.
    void printNodes() const;
    /// The frames that stand on the form itself and are visible, in the order of their declaration.
    void printFrames() const;
    /// The names of the controls that the tab key reaches, in its order.
    void printTabs() const;
    /// Every property of every control of the window in front.
    void printAll() const;

  private:
    OpenWindows windows_;
    std::ostream& out_;
};

}  // namespace kestedit
