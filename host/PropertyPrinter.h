// The queries of the script language: what the form shows, as lines of text.
#pragma once

#include <ostream>
#include <string_view>

#include "form/EditorControl.h"

namespace kestedit {

class dlgNewFolder;
class frmEdit;

/// Prints a form and, while it stands in front, the new-folder dialog.
class PropertyPrinter {
  public:
    /// `dialog` is null while none is open. All must outlive the printer.
    PropertyPrinter(const frmEdit& form, const dlgNewFolder* dialog, std::ostream& out)
        : form_(form), dialog_(dialog), out_(out) {}

    /// `NAME.PROPERTY = VALUE`, the name as the script has it. Throws std::invalid_argument for one that does not
    /// exist.
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
    [[nodiscard]] const ControlRegistry& front() const;
    [[nodiscard]] const EditorControl& control(std::string_view name) const;

    const frmEdit& form_;
    const dlgNewFolder* dialog_;
    std::ostream& out_;
};

}  // namespace kestedit
