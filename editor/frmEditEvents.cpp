// The handlers of frmEdit: each checks that a user could cause the event, changes the control, and runs its rule.
#include <algorithm>
#include <string>
#include <utility>

#include "editor/ChangeRules.h"
#include "editor/FieldNotices.h"
#include "editor/Findings.h"
#include "editor/LineBreaks.h"
#include "editor/NumberRanges.h"
#include "editor/TextFilters.h"
#include "editor/TypedMoments.h"
#include "editor/frmEdit.h"
#include "editor/modCompNodes.h"
#include "editor/modSpinButtons.h"

namespace kestedit {

namespace {

constexpr int keyUp = 38;
constexpr int keyDown = 40;

/// The three editors of one duration.
struct Duration {
    EditorControl FormModel::*minutes;
    EditorControl FormModel::*hours;
    EditorControl FormModel::*days;
};
constexpr Duration durations[] = {
    {&FormModel::dxMinutes, &FormModel::dxHours, &FormModel::dxDays},
    {&FormModel::dxAgeMinutes, &FormModel::dxAgeHours, &FormModel::dxAge},
};

// The editor has taken its step: carries and borrows between the editors of its duration.
void settleDuration(FormModel& form, const EditorControl& stepped, bool up) {
    for (const Duration& duration : durations) {
        EditorControl& minutes = form.*duration.minutes;
        EditorControl& hours = form.*duration.hours;
        EditorControl& days = form.*duration.days;
        if (&stepped == &minutes) SpinMinutes(minutes, hours, days, up);
        if (&stepped == &hours) SpinHours(minutes, hours, days, up);
        if (&stepped == &days) SpinDays(minutes, hours, days, up);
    }
}

// The user's own choice takes the place of what the job held: for the whole group, for the whole duration.
void forgetUnread(FormModel& form, EditorControl& control) {
    EditorControl& holder = control.Kind == ControlKind::option ? *form.group(control.Base).front() : control;
    holder.Unread.reset();
    for (const Duration& duration : durations) {
        const bool isPart = &control == &(form.*duration.minutes) || &control == &(form.*duration.hours);
        if (isPart) (form.*duration.days).Unread.reset();
    }
}

bool isDays(const FormModel& form, const EditorControl& control) {
    return std::ranges::any_of(durations, [&](const Duration& row) { return &(form.*row.days) == &control; });
}

}  // namespace

std::optional<std::string> frmEdit::obstacle(const EditorControl& control) const {
    if (!control.Enabled) return control.Name() + " is disabled";
    if (!control.Visible) return control.Name() + " is hidden";
    for (const EditorControl* frame = control.Container; frame && frame->Container; frame = frame->Container) {
        if (!frame->Visible) return control.Name() + " stands in " + frame->Name() + ", which is hidden";
    }
    return std::nullopt;
}

void frmEdit::requireOpen() const {
    if (!open_) throw EventRefused("the form has closed");
}

void frmEdit::requireReachable(const EditorControl& control, std::initializer_list<ControlKind> kinds) const {
    requireOpen();
    if (std::ranges::find(kinds, control.Kind) == kinds.end()) {
        throw EventRefused(control.Name() + " takes no such event");
    }
    if (const auto reason = obstacle(control)) throw EventRefused(*reason);
}

void frmEdit::changed(EditorControl& control, bool typing) {
    typing_ = typing ? &control : nullptr;
    forgetUnread(*this, control);
    RunChangeRule(*this, control);
    if (&control == &chkEditPaths) {
        ini_.WriteProgramSetting("EditWin", "chkEditPaths", chkEditPaths.isSet() ? "1" : "0");
    }
    refreshNotices();
    // A finding goes as soon as the user has mended it. The disk is asked only when the job wants other things from it.
    if (timerRunning_) return;
    checkSchedule(!isUnfinished(control));
    if (DemandsOnFolders(*this) != checkedFolders_.demands) checkPaths();
}

void frmEdit::refreshNotices() {
    RefreshNotices(*this, ini_, platform_, typing_);
}

void frmEdit::onTextTyped(EditorControl& control, std::string_view text) {
    requireReachable(control, {ControlKind::text, ControlKind::password, ControlKind::memo, ControlKind::path,
                               ControlKind::date, ControlKind::time});
    if (holdsMoment(control)) {
        TypeMoment(control, text, platform_);
        return changed(control, true);
    }
    if (control.ReadOnly) throw EventRefused(control.Name() + " is filled by its buttons only");
    characters_.require(control, KeptText(*this, control, text), JobCharacters::Entry::typed);
    control.EditValue = control.Kind == ControlKind::memo ? windowsLines(text) : singleLine(text);
    FilterFieldText(*this, control);
    if (control.Kind == ControlKind::path) withdrawPathFinding(control);
    changed(control, true);
}

std::string frmEdit::momentText(const EditorControl& control) const {
    return MomentText(control, platform_);
}

void frmEdit::onEditingFinished(EditorControl& control) {
    requireOpen();
    typing_ = nullptr;
    if (control.Typed) {
        EndTyping(control, platform_);
        return changed(control);
    }
    refreshNotices();
    characters_.editingFinished();
    if (control.Kind == ControlKind::path && &control != &dxExecPath) checkPaths();
    if (!timerRunning_) checkSchedule();
}

// A date or time that the user is at may change with the next key, and an emptied number is on its way to another.
bool frmEdit::isUnfinished(const EditorControl& control) const {
    const bool moment = control.Kind == ControlKind::date || control.Kind == ControlKind::time;
    const bool number = control.Kind == ControlKind::number || control.Kind == ControlKind::spin;
    return FocusedControl == &control && (moment || (number && control.isEmpty()));
}

void frmEdit::onCheckClicked(EditorControl& control, int state) {
    requireReachable(control, {ControlKind::check});
    if (state < 0 || state > 2) throw EventRefused(control.Name() + " takes 0, 1 or 2");
    if (control.State == state) return;
    control.State = state;
    changed(control);
}

void frmEdit::onOptionChosen(EditorControl& member) {
    requireReachable(member, {ControlKind::option});
    if (member.isSet()) return;
    for (EditorControl* other : group(member.Base))
        other->State = other == &member ? 1 : 0;
    changed(member);
}

void frmEdit::onItemPicked(EditorControl& control, std::string_view text) {
    requireReachable(control, {ControlKind::pick});
    const auto entry = std::ranges::find(control.Items, text);
    if (entry == control.Items.end()) {
        throw EventRefused(control.Name() + " has no entry \"" + std::string{text} + "\"");
    }
    onItemPicked(control, static_cast<int>(entry - control.Items.begin()));
}

void frmEdit::onItemPicked(EditorControl& control, int position) {
    requireReachable(control, {ControlKind::pick});
    if (position < 0 || std::cmp_greater_equal(position, control.Items.size())) {
        throw EventRefused(control.Name() + " has no entry " + std::to_string(position));
    }
    control.pick(position);
    changed(control);
}

void frmEdit::onDateChosen(EditorControl& control, std::optional<Date> date) {
    requireReachable(control, {ControlKind::date});
    if (date && !date->ok()) throw EventRefused(control.Name() + " takes no such date");
    control.Typed.reset();
    control.EditValue = date ? Value{*date} : Value{};
    changed(control);
}

void frmEdit::onTimeChosen(EditorControl& control, std::optional<TimeOfDay> time) {
    requireReachable(control, {ControlKind::time});
    if (time && (*time < TimeOfDay{0} || *time >= std::chrono::days{1})) {
        throw EventRefused(control.Name() + " takes no such time");
    }
    control.Typed.reset();
    control.EditValue = time ? Value{*time} : Value{};
    changed(control);
}

void frmEdit::onNumberTyped(EditorControl& control, std::optional<std::int64_t> number) {
    requireReachable(control, {ControlKind::number, ControlKind::spin});
    const NumberRange range = numberRange(control.Base);
    if (number && (*number < range.least || *number > range.most)) {
        throw EventRefused(
            textOf(ini_, TextId::numberRange, {std::to_string(range.least), std::to_string(range.most)}));
    }
    control.EditValue = number ? Value{*number} : Value{};
    changed(control, true);
}

void frmEdit::onSpin(EditorControl& control, bool up) {
    requireReachable(control, {ControlKind::spin});
    const bool stays = (!up && isDays(*this, control) && control.number() == 0) ||
                       (up && control.number() >= numberRange(control.Base).most);
    if (!stays) control.EditValue = control.number() + (up ? 1 : -1);
    settleDuration(*this, control, up);
    changed(control);
}

void frmEdit::onInnerButton(EditorControl& control, int button) {
    requireReachable(control, {ControlKind::path});
    if (&control == &dxExecPath) return browseExecPath(button);
    if (button == 0) return browsePath(control);
    if (button == 1) return createFolder(control);
    throw EventRefused(control.Name() + " has no button " + std::to_string(button));
}

void frmEdit::onCommand(EditorControl& control) {
    requireReachable(control, {ControlKind::command});
    const int last = static_cast<int>(Navigation.Nodes.size()) - 1;
    const int focused = Navigation.FocusedNode;
    if (&control == &cmdPrevious) {
        onNodeClicked(focused >= 1 ? focused - 1 : last);
    } else if (&control == &cmdNext) {
        onNodeClicked(focused < last ? focused + 1 : 0);
    } else if (&control == &cmdCancel) {
        values_.Cancelled = true;
        values_.CancelCompanion = false;
        close();
    } else if (&control == &cmdSave) {
        save();
    }
}

void frmEdit::onNodeClicked(int position) {
    requireOpen();
    if (Navigation.Nodes.empty()) return;
    if (position < 0 || position >= static_cast<int>(Navigation.Nodes.size())) {
        throw EventRefused("no navigation node " + std::to_string(position));
    }
    showPage(position);
    if (!loading_) focus(dxTreeList1);
}

// The list moves its focus by itself, without going round at its ends; the page follows.
void frmEdit::onNodeKey(int keyCode) {
    requireOpen();
    if (keyCode != keyUp && keyCode != keyDown) return;
    const int last = static_cast<int>(Navigation.Nodes.size()) - 1;
    const int wanted = Navigation.FocusedNode + (keyCode == keyUp ? -1 : 1);
    onNodeClicked(std::clamp(wanted, 0, std::max(last, 0)));
}

// Taken, and nothing follows: every field keeps its own menu under the right button.
void frmEdit::onMousePressed(EditorControl& /*control*/, int /*button*/) {
    requireOpen();
}

void frmEdit::onFocused(EditorControl& control) {
    requireOpen();
    focus(control);
    if (typing_ && typing_ != &control) onEditingFinished(*typing_);
}

void frmEdit::onTimer() {
    requireOpen();
    if (!timerRunning_) return;
    checkPaths();
    checkSchedule();
    timerRunning_ = false;
}

void frmEdit::checkSchedule(bool mayAppear) {
    const auto finding = CheckSchedule(*this, platform_.clock.now());
    if (finding && !mayAppear && !lblChkTimeMsg.Visible) return;
    lblChkTimeMsg.Caption = finding ? FindingText(ini_, *finding) : std::string{};
    lblChkTimeMsg.Visible = finding.has_value();
}

void frmEdit::onCloseBox() {
    requireOpen();
    close();
}

void frmEdit::focus(EditorControl& control) {
    FocusedControl = &control;
}

void frmEdit::showPage(int position) {
    Navigation.FocusedNode = position;
    ShowNodePage(*this);
}

}  // namespace kestedit
