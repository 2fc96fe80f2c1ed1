#include "editor/rules/schedule.h"

#include "editor/NodeImages.h"
#include "editor/rules/applicability.h"
#include "editor/rules/paths.h"

namespace kestedit {

namespace {

bool isIntervalZero(const FormModel& form) {
    return form.dxDays.number() == 0 && form.dxHours.number() == 0 && form.dxMinutes.number() == 0;
}

/// A job without a date runs today, as it is saved; one without a time has passed when its day has.
bool hasPassed(const FormModel& form, const LocalTime& now) {
    const Date date = form.dxDate.date().value_or(now.date);
    const auto time = form.dxDateTime.time();
    return date < now.date || (date == now.date && time && *time < now.time);
}

}  // namespace

void ApplyIntervall(FormModel& form) {
    SetAllApply(form, form.optIntervall[Schedule::interval].isSet(), form.dxDays, form.lblDays, form.dxHours,
                form.lblHours, form.dxMinutes, form.lblMinutes);
    SetAllApply(form, form.optIntervall[Schedule::time].isSet(), form.optIntTime);
    ApplyRunTime(form);
    SetAllApply(form, form.optIntervall[Schedule::monitoring].isSet(), form.lblRTMon, form.lblMonDelay, form.dxMonDelay,
                form.lblWatchWhat, form.dxMonWatch, form.chkMonSubFolder);
    ApplyMonitorPath(form);
    SetNodeImage(form, Page::monitoring, ChoiceMark(ChangesSchedule(form)));
}

void ApplyIntTime(FormModel& form) {
    ApplyRunTime(form);
}

void ApplyRunTime(FormModel& form) {
    const bool timed = form.optIntervall[Schedule::time].isSet();
    SetAllApply(form, timed, form.lblDateTime, form.dxDateTime);
    SetAllApply(form, timed && form.optIntTime[RunTime::weekly].isSet(), form.lblIntWeekDay, form.dxIntWeekDay);
    SetAllApply(form, timed && form.optIntTime[RunTime::monthly].isSet(), form.lblIntMonthDay, form.dxIntMonthDay);
    SetAllApply(form, timed && form.optIntTime[RunTime::onDate].isSet(), form.lblDate, form.dxDate);
}

void ApplyMonitorPath(FormModel& form) {
    const bool watching = form.optIntervall[Schedule::monitoring].isSet();
    for (EditorControl& member : form.optMonitorPath) {
        const bool exists = member.Member != static_cast<int>(MonitoredFolder::destination) || HasDestination(form);
        SetApplies(form, member, watching && exists);
    }
    SetApplies(form, form.dxMonitorPath, watching && form.optMonitorPath[MonitoredFolder::own].isSet());
}

void LeaveMissingDestination(FormModel& form) {
    const bool watched = form.optMonitorPath[MonitoredFolder::destination].isSet();
    if (watched && !HasDestination(form)) form.optMonitorPath.select(static_cast<std::size_t>(MonitoredFolder::source));
}

bool ChangesSchedule(const FormModel& form) {
    return form.optIntervall[Schedule::time].isSet() || form.optIntervall[Schedule::monitoring].isSet();
}

std::optional<ScheduleFinding> CheckSchedule(const FormModel& form, const LocalTime& now) {
    if (form.optIntervall[Schedule::time].isSet() && form.optIntTime[RunTime::onDate].isSet() && hasPassed(form, now)) {
        return ScheduleFinding::datePassed;
    }
    if (form.optIntervall[Schedule::interval].isSet() && isIntervalZero(form)) return ScheduleFinding::intervalZero;
    return std::nullopt;
}

}  // namespace kestedit
