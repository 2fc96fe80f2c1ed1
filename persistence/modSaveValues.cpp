#include "persistence/modSaveValues.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "persistence/DurationMinutes.h"
#include "persistence/JobFormat.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

// Where the values come from.
struct Source {
    const FormModel& form;
    const DateFormat& dates;
    const LocalTime& now;
};

// Readers of the file drop blanks and tabs at the ends of a value and one pair of quotes round it, so a text that has
// these of its own gets a pair to lose. Line breaks and NUL count as the blanks that they become in the file.
std::string guarded(std::string text) {
    constexpr std::string_view lostAtEnds{" \t\r\n\0", 5};
    constexpr std::string_view quotes{"\"'"};
    if (text.empty()) return text;
    const char first = text.front();
    const char last = text.back();
    const bool trimmed = lostAtEnds.find(first) != lostAtEnds.npos || lostAtEnds.find(last) != lostAtEnds.npos;
    const bool unquoted = text.size() > 1 && first == last && quotes.find(first) != quotes.npos;
    return trimmed || unquoted ? '"' + text + '"' : text;
}

std::string stateText(const EditorControl& control) {
    return std::to_string(control.State);
}

std::optional<std::string> indexText(const FormModel& form, std::string_view group) {
    for (const EditorControl* member : form.group(group)) {
        if (member->isSet()) return std::to_string(member->Member);
    }
    return std::nullopt;
}

std::string numberText(const EditorControl& control) {
    const auto* held = std::get_if<std::int64_t>(&control.EditValue);
    return held ? std::to_string(*held) : std::string{};
}

std::string dateText(const Source& from, const EditorControl& control) {
    const std::optional<Date> date = control.date();
    return date ? from.dates.text(*date) : std::string{};
}

bool deletesNoFolders(const FormModel& form) {
    return form.chkSubFolder.State == 0 && !form.chkSubFolder.Unread;
}

std::string emptyFoldersText(const FormModel& form) {
    return deletesNoFolders(form) ? "0" : stateText(form.chkDelEFol);
}

std::string freeSpaceText(const EditorControl& space) {
    return std::to_string(std::max(space.number(), leastFreeSpace));
}

std::optional<std::string> renameSchemeText(const EditorControl& list) {
    return list.ItemIndex < 0 ? std::nullopt : std::optional{std::to_string(list.ItemIndex + 1)};
}

std::string withCarets(std::string_view lines) {
    constexpr std::string_view lineBreak = "\r\n";
    std::string line;
    line.reserve(lines.size());
    for (auto at = lines.find(lineBreak); at != lines.npos; at = lines.find(lineBreak)) {
        line.append(lines.substr(0, at)).append("^");
        lines.remove_prefix(at + lineBreak.size());
    }
    return line.append(lines);
}

std::string actionNodeImage(const FormModel& form) {
    const auto position = form.PageNodeIndex.find(static_cast<int>(Page::mode));
    const auto& nodes = form.Navigation.Nodes;
    if (position == form.PageNodeIndex.end() || position->second < 0) return form.StoredNodeIcon;
    const auto node = static_cast<std::size_t>(position->second);
    return node < nodes.size() ? nodes[node].Image : std::string{};
}

std::optional<TimeOfDay> runTime(const EditorControl& editor) {
    return editor.text() == "1" ? TimeOfDay{0} : editor.time();
}

std::string runTimeText(const EditorControl& editor) {
    const std::optional<TimeOfDay> time = runTime(editor);
    return time ? timeText(*time) : guarded(editor.text());
}

// Tells the runner that today's run has been missed, by the day of the last one.
std::optional<std::string> intervalStateText(const Source& from) {
    const std::optional<TimeOfDay> time = runTime(from.form.dxDateTime);
    if (!time || from.now.time <= *time) return std::nullopt;
    return from.dates.text(addDays(from.now.date, -1));
}

// A size that cannot be read is one all the same: the limit stands with it.
bool hasNoSize(const FormModel& form) {
    return form.dxSize.isEmpty() && !form.dxSize.Unread;
}

// What the job holds and the row's control cannot show. The forms that follow from other controls are not asked.
std::optional<std::string> unreadOf(const FormModel& form, const JobRow& row) {
    using enum ValueForm;
    const bool follows = (row.form == folderStructure && form.optAction[Action::synchronise].isSet()) ||
                         (row.form == extensionIndex && form.dxExt.isEmpty()) ||
                         (row.form == sizeIndex && hasNoSize(form));
    if (row.control.empty() || follows) return std::nullopt;
    const auto& unread = form.at(row.control).Unread;
    return unread ? std::optional{guarded(*unread)} : std::nullopt;
}

// Nothing for a row that is left out of the file.
std::optional<std::string> valueOf(const Source& from, const JobRow& row) {
    using enum ValueForm;
    const FormModel& form = from.form;
    if (auto unread = unreadOf(form, row)) return unread;
    // clang-format off
    switch (row.form) {
        case state:
        case writtenOnly:      return stateText(form.at(row.control));
        case index:
        case actionIndex:      return indexText(form, row.control).value_or("0");
        case optionalIndex:    return indexText(form, row.control);
        case text:
        case password:
        case path:             return guarded(form.at(row.control).text());
        case number:           return numberText(form.at(row.control));
        case date:
        case startDate:        return dateText(from, form.at(row.control));
        case listPosition:     return std::to_string(form.at(row.control).ItemIndex);
        case jobName:          return guarded(std::string{trimBlanks(form.dxName.text())});
        case emptyFolders:     return emptyFoldersText(form);
        case folderStructure:  return form.optAction[Action::synchronise].isSet() ? "1" : stateText(form.chkFStruct);
        case freeSpace:        return freeSpaceText(form.dxFreeSpace);
        case zero:             return "0";
        case empty:            return "";
        case extensionIndex:   return form.dxExt.isEmpty() ? "0" : indexText(form, row.control).value_or("0");
        case sizeIndex:        return hasNoSize(form) ? "0" : indexText(form, row.control).value_or("0");
        case renameScheme:     return renameSchemeText(form.dxPickRenamer);
        case comment:          return guarded(storedComment(form));
        case nodeIcon:         return guarded(actionNodeImage(form));
        case compressionLevel: return std::to_string(form.CompressionLevel);
        case ageMinutes:       return std::to_string(fileAgeMinutes(form));
        case interval:
        case intervalCopy:     return std::to_string(runIntervalMinutes(form));
        case intervalDate:     return from.dates.text(form.dxDate.date().value_or(from.now.date));
        case timeOfDay:        return runTimeText(form.dxDateTime);
        case intervalState:    return intervalStateText(from);
        case weekDay:          return std::to_string(form.dxIntWeekDay.ItemIndex + 1);
    }
    // clang-format on
    return std::nullopt;
}

bool isNote(ValueForm form) {
    return form == ValueForm::comment || form == ValueForm::nodeIcon;
}

}  // namespace

std::string storedComment(const FormModel& form) {
    return withCarets(form.dxComment.text());
}

void CorrectValues(FormModel& form) {
    if (deletesNoFolders(form)) form.chkDelEFol.State = 0;
    if (form.dxFreeSpace.number() < leastFreeSpace) form.dxFreeSpace.EditValue = leastFreeSpace;
    normalise(fileAge(form));
    normalise(runInterval(form));
    if (const auto time = runTime(form.dxDateTime)) form.dxDateTime.EditValue = *time;
}

std::vector<JobLine> SaveValues(const FormModel& form, const DateFormat& dates, const LocalTime& now,
                                bool skipComment) {
    const Source from{form, dates, now};
    std::vector<JobLine> lines;
    lines.reserve(jobFormat().size() + 1);
    for (const JobRow& row : jobFormat()) {
        if (skipComment && isNote(row.form)) continue;
        if (auto value = valueOf(from, row)) lines.push_back({jobSection, row.key, std::move(*value)});
    }
    lines.push_back({infoSection, "ProgVersion", std::string{programVersion()}});
    return lines;
}

}  // namespace kestedit
