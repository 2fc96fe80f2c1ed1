#include "component/events/OpenWindows.h"

#include <string>

#include "component/events/EventFaults.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"

namespace kestedit {

namespace {

UnknownName noControl(const std::string& name) {
    return UnknownName("no control named " + name);
}

}  // namespace

const ControlRegistry& OpenWindows::front() const {
    if (dialog) return *dialog;
    return form;
}

EditorControl& OpenWindows::control(std::string_view name) const {
    EditorControl* const found = front().find(name);
    if (!found) throw noControl(std::string(name));
    return *found;
}

EditorControl& OpenWindows::member(std::string_view group, int index) const {
    for (EditorControl* candidate : form.group(group)) {
        if (candidate->Member == index) return *candidate;
    }
    throw noControl(std::string(group) + '(' + std::to_string(index) + ')');
}

}  // namespace kestedit
