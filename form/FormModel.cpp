#include "form/FormModel.h"

#include <algorithm>

namespace kestedit {

namespace {

constexpr std::size_t weekDays = 7;
constexpr std::size_t watchedChanges = 5;

}  // namespace

FormModel::FormModel() {
    // Groups that neither a new job nor the choice of an action selects a member of.
    optSyncExist.select(0);
    optSyncStart.select(0);
    optExecute.select(0);

    lblNoOptionMsg[0].Container = &fraCompression;

    dxIntWeekDay.Items.resize(weekDays);
    dxMonWatch.Items.resize(watchedChanges);
    dxPickRenamer.Items.resize(3);
    dxPickExistSelecter.Items.resize(replaceIfCount);
    for (EditorControl* list : {&dxIntWeekDay, &dxMonWatch, &dxPickRenamer, &dxPickExistSelecter})
        list->pick(0);
    fraSync.Visible = false;
    // Pages appear with their node, findings when there is one.
    for (EditorControl* control : controls()) {
        if (control->Kind == ControlKind::frame && !control->Container) control->Visible = false;
    }
    lblChkPathMsg.Visible = false;
    lblChkTimeMsg.Visible = false;
}

void FormModel::BringToFront(const EditorControl& control) {
    std::erase(FrontOrder, &control);
    FrontOrder.push_back(&control);
}

}  // namespace kestedit
