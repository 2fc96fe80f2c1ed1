#include "editor/FieldNotices.h"

#include <algorithm>
#include <array>
#include <map>
#include <span>
#include <string>
#include <utility>

#include "editor/JobName.h"
#include "editor/Notice.h"
#include "editor/NumberRanges.h"
#include "editor/PatternNotice.h"
#include "editor/RequiredFields.h"
#include "editor/TypedMoments.h"
#include "editor/Views.h"
#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "form/ControlNames.h"
#include "persistence/DurationMinutes.h"
#include "persistence/modSaveValues.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

Noticed when(bool holds, TextId text) {
    return holds ? Noticed{{text}} : std::nullopt;
}

/// The characters of `text` with a blank between each two.
std::string spaced(std::string_view text) {
    std::string spaced;
    while (!text.empty())
        spaced.append(spaced.empty() ? "" : " ").append(takeCharacter(text).bytes);
    return spaced;
}

std::string droppedFrom(const FormModel& form, const EditorControl& field) {
    const auto dropped = form.DroppedChars.find(&field);
    return dropped == form.DroppedChars.end() ? std::string{} : spaced(dropped->second);
}

Noticed dropped(const FormModel& form, const EditorControl& field, TextId text) {
    std::string characters = droppedFrom(form, field);
    if (characters.empty()) return std::nullopt;
    return Notice{text, {std::move(characters), form.chkRegExFolder.plainCaption()}};
}

/// A pattern that is to be a regular expression and is none matches nothing.
Noticed pattern(const EditorControl& field, const EditorControl& regExBox) {
    if (!regExBox.isSet() || field.isEmpty()) return std::nullopt;
    return regularExpressionNotice(field.text());
}

Noticed required(const FormModel& form, const EditorControl& field) {
    const auto fields = requiredFields();
    const auto row =
        std::ranges::find_if(fields, [&](const RequiredField& one) { return &(form.*one.field) == &field; });
    return when(row->active(form) && field.isEmpty(), TextId::textMissing);
}

Noticed unreadJob(const FormModel& form) {
    return form.LoadProblem.empty() ? std::nullopt : Noticed{{TextId::jobUnreadable, {form.LoadProblem}}};
}

Noticed password(const FormModel&) {
    return Notice{TextId::passwordReadable};
}

Noticed jobName(const FormModel& form) {
    const std::string characters = invalidNameCharacters(form.dxName.text());
    if (!characters.empty()) return Notice{TextId::nameInvalid, {spaced(characters)}};
    if (hasControlCharacter(form.dxName.text())) return Notice{TextId::nameControl};
    return when(isHiddenName(form.dxName.text()), TextId::nameHidden);
}

Noticed notes(const FormModel& form) {
    if (form.dxComment.Unread) return Notice{TextId::notesCut};
    const std::string stored = storedComment(form);
    const bool utf8 = form.StoredAsUtf8;
    const std::size_t size = utf8 ? stored.size() : characterCount(stored);
    if (size == 0) return std::nullopt;
    if (size > mostShownOfComment) {
        return Notice{utf8 ? TextId::notesTooLongUtf8 : TextId::notesTooLong,
                      {std::to_string(size - mostShownOfComment)}};
    }
    return Notice{utf8 ? TextId::notesRoomUtf8 : TextId::notesRoom, {std::to_string(mostShownOfComment - size)}};
}

/// Drives and servers of other systems have a root as well.
bool isRelative(const std::string& path) {
    const bool drive = path.size() > 1 && path[1] == ':';
    return !path.empty() && path.front() != '/' && path.front() != '\\' && !drive;
}

Noticed relative(const EditorControl& field) {
    return when(isRelative(field.text()), TextId::relativePath);
}

/// What the view cannot show of the job, told where it shows the job's mode.
Noticed action(const FormModel& form) {
    const EditorControl& chosen = form.optAction[static_cast<std::size_t>(form.SelectedAction)];
    if (chosen.Visible || !chosen.isSet()) return std::nullopt;
    return Notice{TextId::actionNotInView, {chosen.Caption}};
}

/// A plain interval is what a view without the page stands for.
Noticed hiddenSchedule(const FormModel& form) {
    const auto chosen = form.optIntervall.selected();
    if (!chosen || !ChangesSchedule(form)) return std::nullopt;
    const EditorControl& member = form.optIntervall[static_cast<std::size_t>(*chosen)];
    const bool pageMissing = viewOf(form) && !nodeOfPage(form, Page::monitoring);
    if (member.Visible && !pageMissing) return std::nullopt;
    return Notice{TextId::scheduleNotInView, {member.plainCaption()}};
}

bool runsOn(const FormModel& form, RunTime day) {
    return form.optIntervall[Schedule::time].isSet() && form.optIntTime[day].isSet();
}

bool areDatesReversed(const FormModel& form) {
    const auto from = form.dxDateFrom.date();
    const auto to = form.dxDateTo.date();
    return form.optAge[AgeLimit::fromTo].isSet() && from && to && *to < *from;
}

bool isAgeZero(const FormModel& form) {
    const bool byAge = form.optAge[AgeLimit::older].isSet() || form.optAge[AgeLimit::newer].isSet();
    return byAge && form.dxAge.number() == 0 && form.dxAgeHours.number() == 0 && form.dxAgeMinutes.number() == 0;
}

Noticed freeSpace(const FormModel& form) {
    if (form.dxFreeSpace.number() >= leastFreeSpace) return std::nullopt;
    return Notice{TextId::freeSpaceRaised, {std::to_string(leastFreeSpace)}};
}

Noticed monitoredDestination(const FormModel& form) {
    const bool watches =
        form.optIntervall[Schedule::monitoring].isSet() && form.optMonitorPath[MonitoredFolder::destination].isSet();
    return when(watches && !HasDestination(form), TextId::noDestinationToMonitor);
}

/// When a notice is told about a field that the user is typing into.
enum class Telling { atOnce, whenLeft };
using enum Telling;

struct NoticeRule {
    std::string_view control;
    Telling telling;
    Noticed (*notice)(const FormModel& form);
};

using F = FormModel;

// The first rule of a control that has something to say speaks.
// clang-format off
constexpr auto noticeRules = std::to_array<NoticeRule>({
    {"dxName",            atOnce,   jobName},
    {"dxName",            atOnce,   unreadJob},
    {"dxName",            whenLeft, [](const F& form) { return when(form.NameWanted && trimBlanks(form.dxName.text()).empty(), TextId::nameMissingHere); }},
    {"dxComment",         atOnce,   notes},
    {"optAction(0)",      atOnce,   action},
    {"chkPreview",        atOnce,   hiddenSchedule},
    {"dxSource",          whenLeft, [](const F& form) { return relative(form.dxSource); }},
    {"dxDest",            whenLeft, [](const F& form) { return relative(form.dxDest); }},
    {"optIntervall(0)",   atOnce,   hiddenSchedule},
    {"dxDateTime",        whenLeft, [](const F& form) { return when(form.optIntervall[Schedule::time].isSet() && form.dxDateTime.isEmpty(), TextId::timeMissing); }},
    {"dxIntMonthDay",     whenLeft, [](const F& form) { return when(runsOn(form, RunTime::monthly) && form.dxIntMonthDay.isEmpty(), TextId::monthDayMissing); }},
    {"dxDate",            whenLeft, [](const F& form) { return when(runsOn(form, RunTime::onDate) && form.dxDate.isEmpty(), TextId::dateMissing); }},
    {"optMonitorPath(0)", atOnce,   monitoredDestination},
    {"dxMonitorPath",     whenLeft, [](const F& form) { return relative(form.dxMonitorPath); }},
    {"chkFreeSpace",      whenLeft, [](const F& form) { return form.chkFreeSpace.isSet() ? std::nullopt : freeSpace(form); }},
    {"dxFreeSpace",       whenLeft, freeSpace},
    {"dxExecPath",        whenLeft, [](const F& form) { return when(form.chkExecDo.isSet() && form.dxExecPath.isEmpty(), TextId::programMissing); }},
    {"dxFolderMatch",     atOnce,   [](const F& form) { return dropped(form, form.dxFolderMatch, TextId::droppedFromFolderMatch); }},
    {"dxFolderMatch",     atOnce,   [](const F& form) { return pattern(form.dxFolderMatch, form.chkRegExFolder); }},
    {"dxFolderMatch",     whenLeft, [](const F& form) { return required(form, form.dxFolderMatch); }},
    {"dxFileName",        atOnce,   [](const F& form) { return dropped(form, form.dxFileName, TextId::droppedFromFileName); }},
    {"dxFileName",        atOnce,   [](const F& form) { return pattern(form.dxFileName, form.chkRegExFile); }},
    {"dxFileName",        whenLeft, [](const F& form) { return required(form, form.dxFileName); }},
    {"dxExt",             atOnce,   [](const F& form) { return dropped(form, form.dxExt, TextId::droppedFromExtensions); }},
    {"dxExt",             whenLeft, [](const F& form) { return required(form, form.dxExt); }},
    {"dxSize",            whenLeft, [](const F& form) { return when(!form.optSize[SizeLimit::any].isSet() && form.dxSize.isEmpty() && !form.dxSize.Unread, TextId::sizeMissing); }},
    {"dxAge",             whenLeft, [](const F& form) { return when(isAgeZero(form), TextId::ageZero); }},
    {"dxDateTo",          whenLeft, [](const F& form) { return when(areDatesReversed(form), TextId::datesReversed); }},
    {"dxZipPwd",          atOnce,   password},
    {"dxDestZipPwd",      atOnce,   password},
    {"dxRenamer",         atOnce,   [](const F& form) { return dropped(form, form.dxRenamer, TextId::droppedFromRenamer); }},
    {"dxRenamer",         whenLeft, [](const F& form) { return required(form, form.dxRenamer); }},
});
// clang-format on

static_assert(namesControls(noticeRules, &NoticeRule::control), "a notice names no control");

/// What can be wrong with any control: a stored value that it cannot show, a number outside of its range.
Noticed ofAnyControl(const EditorControl& control) {
    if (control.Unread) return Notice{TextId::unreadValue, {quotable(*control.Unread)}};
    const auto* const number = std::get_if<std::int64_t>(&control.EditValue);
    if (!number) return std::nullopt;
    const NumberRange range = numberRange(control.Base);
    if (*number >= range.least && *number <= range.most) return std::nullopt;
    return Notice{TextId::outOfRange,
                  {std::to_string(*number), std::to_string(range.least), std::to_string(range.most)}};
}

/// What is only worth knowing; everything else may be a mistake.
bool warns(const Notice& notice) {
    using enum TextId;
    constexpr std::array information{notesRoom, notesRoomUtf8, notesCut, passwordReadable};
    return std::ranges::find(information, notice.text) == information.end();
}

struct Told {
    std::string words;
    bool warns = false;
};

Told inWords(const modIniHandler& texts, const Notice& notice) {
    return {textOf(texts, notice.text, std::span{notice.values}), warns(notice)};
}

/// What the present choices take away has nothing wrong with it. The first member of a group speaks for all.
bool canHaveNotice(const EditorControl& control) {
    return control.Kind == ControlKind::option || (control.Visible && control.Enabled);
}

}  // namespace

void RefreshNotices(FormModel& form, const modIniHandler& texts, const Platform& platform,
                    const EditorControl* typing) {
    std::map<const EditorControl*, Told> told;
    for (const EditorControl* control : form.controls()) {
        if (!holdsMoment(*control) || !canHaveNotice(*control)) continue;
        const std::string notice = MomentNotice(*control, texts, platform);
        if (!notice.empty()) told.emplace(control, Told{notice, true});
    }
    for (const NoticeRule& rule : noticeRules) {
        const EditorControl& control = form.at(rule.control);
        const bool unfinished = &control == typing && rule.telling == whenLeft && control.Notice.empty();
        if (unfinished || told.contains(&control) || !canHaveNotice(control)) continue;
        if (const Noticed notice = rule.notice(form)) told.emplace(&control, inWords(texts, *notice));
    }
    for (EditorControl* control : form.controls()) {
        const auto own = told.find(control);
        const Noticed anyControls =
            own == told.end() && canHaveNotice(*control) ? ofAnyControl(*control) : std::nullopt;
        const Told shown = own != told.end() ? own->second : anyControls ? inWords(texts, *anyControls) : Told{};
        control->Notice = shown.words;
        control->NoticeWarns = shown.warns;
    }
}

}  // namespace kestedit
