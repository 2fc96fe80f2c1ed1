#include "host/PropertyPrinter.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "component/events/PrintedText.h"
#include "component/events/Properties.h"
#include "editor/frmEdit.h"

namespace kestedit {

void PropertyPrinter::print(std::string_view name) const {
    const std::string value = propertyText(windows_, name);
    out_ << name << " = " << value << '\n';
}

void PropertyPrinter::printNodes() const {
    const NavigationList& list = windows_.form.Navigation;
    int position = 0;
    for (const NavigationNode& node : list.Nodes) {
        out_ << "node " << position << ' ' << quotedText(node.Title) << ' ' << quotedText(node.Image)
             << (position == list.FocusedNode ? " *\n" : "\n");
        ++position;
    }
}

void PropertyPrinter::printFrames() const {
    for (const EditorControl* control : windows_.form.controls()) {
        const bool isPage = control->Kind == ControlKind::frame && !control->Container;
        if (isPage && control->Visible) out_ << control->Name() << '\n';
    }
}

void PropertyPrinter::printTabs() const {
    std::vector<const EditorControl*> sequence;
    std::ranges::copy_if(windows_.front().controls(), std::back_inserter(sequence),
                         [](const EditorControl* control) { return control->TabIndex >= 0 && control->TabStop; });
    std::ranges::stable_sort(sequence, {}, &EditorControl::TabIndex);
    for (const EditorControl* control : sequence)
        out_ << control->Name() << '\n';
}

void PropertyPrinter::printAll() const {
    for (const EditorControl* control : windows_.front().controls()) {
        for (const ControlProperty& property : controlProperties()) {
            out_ << control->Name() << '.' << property.name << " = " << property.text(*control) << '\n';
        }
    }
}

}  // namespace kestedit
