#include "persistence/modGetValues.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "persistence/DurationMinutes.h"
#include "persistence/JobFormat.h"
#include "platform/Text.h"
#include "platform/TimeFormat.h"

namespace kestedit {

namespace {

// What the values are read from, and where they go.
struct Loading {
    FormModel& form;
    const JobRecord& job;
    const DateFormat& dates;
    Date today;

    [[nodiscard]] EditorControl& control(const JobRow& row) const { return form.at(row.control); }
    [[nodiscard]] std::string field(const JobRow& row) const { return job.field(row.key).value_or(std::string{}); }
};

// A whole decimal number within the range, blanks around it allowed, and nothing else.
std::optional<std::int64_t> numberIn(std::string_view text) {
    text = trimBlanks(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

// What the control cannot show is kept for the save.
void keepUnread(EditorControl& control, const std::string& text, bool shown) {
    if (!shown && !text.empty()) control.Unread = text;
}

void loadState(EditorControl& check, const std::string& text) {
    const std::int64_t state = numberIn(text).value_or(-1);
    const bool known = state >= 0 && state <= 2;
    check.State = known ? static_cast<int>(state) : 0;
    keepUnread(check, text, known);
}

// An index that the group does not have selects member 0.
void loadIndex(FormModel& form, std::string_view base, const std::string& text) {
    const auto group = form.group(base);
    const std::int64_t index = numberIn(text).value_or(-1);
    const bool known = index >= 0 && std::cmp_less(index, group.size());
    for (EditorControl* member : group)
        member->State = member->Member == (known ? index : 0) ? 1 : 0;
    keepUnread(*group.front(), text, known);
}

void deselect(FormModel& form, std::string_view base) {
    for (EditorControl* member : form.group(base))
        member->State = 0;
}

void loadOptionalIndex(const Loading& load, const JobRow& row) {
    const std::optional<std::string> text = load.job.field(row.key);
    if (!text) return deselect(load.form, row.control);
    loadIndex(load.form, row.control, *text);
}

void loadPath(const Loading& load, const JobRow& row) {
    EditorControl& editor = load.control(row);
    editor.ToolTipText = load.field(row);
    editor.EditValue = editor.ToolTipText;
}

void loadName(const Loading& load, const JobRow& row) {
    load.form.LoadedName = load.field(row);
    load.form.dxName.EditValue = load.form.LoadedName;
}

// An empty value is an editor that was empty when the job was saved; what is no number leaves the design-time value.
void loadNumber(const Loading& load, const JobRow& row) {
    const std::optional<std::string> text = load.job.field(row.key);
    if (!text) return;
    const auto number = numberIn(*text);
    if (number) {
        load.control(row).EditValue = *number;
    } else if (text->empty()) {
        load.control(row).EditValue = std::monostate{};
    }
    keepUnread(load.control(row), *text, number.has_value());
}

void loadDate(const Loading& load, const JobRow& row, Date replacement) {
    const std::string text = load.field(row);
    const std::optional<Date> date = load.dates.parse(text);
    if (!date && !text.empty()) load.form.DateFormatChanged = true;
    load.control(row).EditValue = date.value_or(replacement);
}

// The stored number counts from `first`, one less means that nothing is picked; a position that the list does not have
// shows nothing and is kept.
void loadPick(const Loading& load, const JobRow& row, std::int64_t first) {
    EditorControl& list = load.control(row);
    const std::string text = load.field(row);
    const auto number = numberIn(text);
    const std::int64_t least = first - 2;  // below it nothing differs, and a difference may not be a number
    if (number) list.pick(std::max(*number, least) - first);
    keepUnread(list, text, number && (list.itemIndex() || list.ItemIndex == -1));
}

// A list that counts from 1 has nothing picked when the job says nothing.
void loadPickFromOne(const Loading& load, const JobRow& row) {
    if (load.field(row).empty()) load.control(row).pick(-1);
    loadPick(load, row, 1);
}

void loadCompressionLevel(const Loading& load, const JobRow& row) {
    const auto level = numberIn(load.field(row));
    if (!level || !std::in_range<int>(*level)) return keepUnread(load.control(row), load.field(row), false);
    load.form.CompressionLevel = static_cast<int>(*level);
    constexpr std::int64_t highest = 4;  // the list is filled later
    if (*level < 1 || *level > highest) keepUnread(load.control(row), load.field(row), false);
}

void loadDuration(const Loading& load, const JobRow& row, const DurationEditors& editors) {
    const std::string text = load.field(row);
    const auto total = numberIn(text);
    if (total) showMinutes(editors, *total);
    keepUnread(editors.days, text, total.has_value());
}

// What a person reads as a time: "14:05:00", "1:05:30", "2:05 pm", "14.05.00". But "0.25" may be a part of a day, and
// "830" anything. A save makes midnight of "1", so it is shown as that.
std::optional<TimeOfDay> storedTime(const std::string& text) {
    if (text == "1") return TimeOfDay{0};
    const bool isClock = text.find(':') != std::string::npos || std::ranges::count(text, '.') == 2;
    return isClock ? TimeFormat{}.parseTyped(text) : std::nullopt;
}

// A text that is no time stays in the editor, so that a save gives it back.
void loadTime(EditorControl& editor, std::string text) {
    if (const auto time = storedTime(text)) {
        editor.EditValue = *time;
    } else if (text.empty()) {
        editor.EditValue = std::monostate{};
    } else {
        editor.EditValue = std::move(text);
    }
}

std::string withLineBreaks(std::string_view line) {
    std::string lines;
    for (const char c : line) {
        if (c == '^') {
            lines += "\r\n";
        } else {
            lines += c;
        }
    }
    return lines;
}

void loadRow(const Loading& load, const JobRow& row) {
    using enum ValueForm;
    FormModel& form = load.form;
    // clang-format off
    switch (row.form) {
        case state:
        case emptyFolders:
        case folderStructure:  return loadState(load.control(row), load.field(row));
        case index:
        case extensionIndex:
        case sizeIndex:        return loadIndex(form, row.control, load.field(row));
        case optionalIndex:    return loadOptionalIndex(load, row);
        case text:
        case password:         load.control(row).EditValue = load.field(row); return;
        case path:             return loadPath(load, row);
        case number:
        case freeSpace:        return loadNumber(load, row);
        case date:
        case intervalDate:     return loadDate(load, row, load.today);
        case startDate:        return loadDate(load, row, addDays(load.today, -1));
        case listPosition:     return loadPick(load, row, 0);
        case jobName:          return loadName(load, row);
        case renameScheme:
        case weekDay:          return loadPickFromOne(load, row);
        case compressionLevel: return loadCompressionLevel(load, row);
        case ageMinutes:       return loadDuration(load, row, fileAge(form));
        case interval:         return loadDuration(load, row, runInterval(form));
        case timeOfDay:        return loadTime(form.dxDateTime, load.field(row));
        case nodeIcon:         form.StoredNodeIcon = load.field(row); return;
        case actionIndex:    // GetAction has loaded it
        case comment:        // comes apart from the record, cut to the size of a text
        case writtenOnly:
        case zero:
        case empty:
        case intervalCopy:
        case intervalState:    return;
    }
    // clang-format on
}

const JobRow& actionRow() {
    const auto rows = jobFormat();
    return *std::ranges::find(rows, ValueForm::actionIndex, &JobRow::form);
}

}  // namespace

void GetAction(FormModel& form, const JobRecord& job) {
    const JobRow& row = actionRow();
    loadIndex(form, row.control, job.field(row.key).value_or("0"));
}

void GetValues(FormModel& form, const JobRecord& job, std::string_view comment, const DateFormat& dates, Date today) {
    const Loading load{form, job, dates, today};
    for (const JobRow& row : jobFormat())
        loadRow(load, row);
    form.dxComment.EditValue = withLineBreaks(comment);
    keepUnread(form.dxComment, job.field("Comment").value_or(""), job.field("Comment").value_or("") == comment);
}

void SetNewJobDefaults(FormModel& form, const LocalTime& now) {
    const auto selectFirst = [](auto&... groups) { (groups.select(0), ...); };
    selectFirst(form.optAction, form.optIntervall, form.optMonitorPath, form.optIntTime, form.optFolderMatch,
                form.optFileMatch, form.optExt, form.optSize, form.optAge, form.optFileAgeType, form.optFileDate,
                form.optAttrSetSource, form.optAttrSetDest, form.optExist, form.optUnZip, form.optRenameSelect,
                form.optExtFileTime);
    form.fraSync.Visible = false;
    form.chkOnlyCompare.Visible = true;
    form.chkZipIntStruct.State = 1;
    form.chkDestKeepZStruct.State = 1;
    SetPresentDates(form, now);
}

void SetPresentDates(FormModel& form, const LocalTime& now) {
    for (EditorControl* date : {&form.dxDate, &form.dxDateFrom, &form.dxDateTo, &form.dxFileDate}) {
        date->EditValue = now.date;
    }
    form.dxDateTime.EditValue = now.time;
}

}  // namespace kestedit
