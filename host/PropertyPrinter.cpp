#include "host/PropertyPrinter.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"
#include "host/Properties.h"
#include "host/ScriptText.h"

namespace kestedit {

const ControlRegistry& PropertyPrinter::front() const {
    if (dialog_) return *dialog_;
    return form_;
}

const EditorControl& PropertyPrinter::control(std::string_view name) const {
    // The form stays visible behind the dialog; only a name that both have means the one in front.
    const EditorControl* const found = front().find(name);
    return found ? *found : form_.at(name);
}

void PropertyPrinter::print(std::string_view name) const {
    const auto dot = name.find('.');
    const std::string_view owner = name.substr(0, dot);
    const std::string_view property = name.substr(dot + 1);
    std::string value;
    if (owner == "frmEdit") {
        value = formText(form_, property);
    } else if (owner == "dlgNewFolder") {
        if (!dialog_) throw std::invalid_argument("dlgNewFolder is not open");
        value = dialogText(*dialog_, property);
    } else {
        value = controlText(control(owner), property);
    }
    out_ << name << " = " << value << '\n';
}

void PropertyPrinter::printNodes() const {
    const NavigationList& list = form_.Navigation;
    int position = 0;
    for (const NavigationNode& node : list.Nodes) {
        out_ << "node " << position << ' ' << quotedText(node.Title) << ' ' << quotedText(node.Image)
             << (position == list.FocusedNode ? " *\n" : "\n");
        ++position;
    }
}

void PropertyPrinter::printFrames() const {
    for (const EditorControl* control : form_.controls()) {
        const bool isPage = control->Kind == ControlKind::frame && !control->Container;
        if (isPage && control->Visible) out_ << control->Name() << '\n';
    }
}

void PropertyPrinter::printTabs() const {
    std::vector<const EditorControl*> sequence;
    std::ranges::copy_if(front().controls(), std::back_inserter(sequence),
                         [](const EditorControl* control) { return control->TabIndex >= 0 && control->TabStop; });
    std::ranges::stable_sort(sequence, {}, &EditorControl::TabIndex);
    for (const EditorControl* control : sequence)
        out_ << control->Name() << '\n';
}

void PropertyPrinter::printAll() const {
    for (const EditorControl* control : front().controls()) {
        for (const ControlProperty& property : controlProperties()) {
            out_ << control->Name() << '.' << property.name << " = " << property.text(*control) << '\n';
        }
    }
}

}  // namespace kestedit
