// The job file as one table: key, control, value form, in the order of the file. Loading, saving and the documentation
// of the format read these rows.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kestedit {

/// How a control's content stands in the file. Forms from `jobName` on belong to one row each: the irregular ones.
enum class ValueForm : std::uint8_t {
    state,          ///< State of a check box, "0", "1" or "2"
    index,          ///< position of the selected member of an option group, "0" when none is selected
    optionalIndex,  ///< index, no key at all when no member is selected
    text,           ///< EditValue as it is
    password,       ///< text that nobody but the job's owner should read
    path,           ///< text, which is the control's tool tip as well
    number,         ///< EditValue as decimal text, empty without a number
    date,           ///< short date text of the user's locale, empty without a date; today replaces it when loading
    listPosition,   ///< position of the entry in the pick list, "-1" when none is picked

    jobName,           ///< text without the blanks at both ends; the name that the job was loaded under
    emptyFolders,      ///< state, "0" without the search in subfolders
    folderStructure,   ///< state, "1" whenever the action synchronises
    writtenOnly,       ///< state of a control that another key loads
    freeSpace,         ///< number, raised to 2000 in the control first
    zero,              ///< always "0"
    actionIndex,       ///< index that GetAction loads, ahead of all others
    empty,             ///< always empty
    startDate,         ///< date; yesterday replaces it when loading
    extensionIndex,    ///< index, "0" without extensions
    sizeIndex,         ///< index, "0" when the size holds no value
    renameScheme,      ///< "1" to "3" by the entry's text, no key for any other text
    comment,           ///< text with "^" for every line break
    nodeIcon,          ///< image of the action's navigation node
    compressionLevel,  ///< "1" to "4" by the entry's text
    ageMinutes,        ///< days, hours and minutes of the file age as minutes
    interval,          ///< days, hours and minutes of the run interval as minutes
    intervalCopy,      ///< the interval once more, never loaded
    intervalDate,      ///< date, today when empty
    timeOfDay,         ///< time text; the text "1" becomes "00:00:00"
    intervalState,     ///< yesterday's date, only when the time of day has passed
    weekDay            ///< position in the week, from 1; "0" when none is picked
};

struct JobRow {
    std::string_view key;
    std::string_view control;  ///< "chkSubFolder", "chkAttrHidden(2)", the base name of an option group; empty: none
    ValueForm form;
};

inline constexpr std::string_view jobSection = "Job";
inline constexpr std::string_view infoSection = "Info";

/// The rows of section "Job".
[[nodiscard]] std::span<const JobRow> jobFormat();

/// The editor's version for "Info"/"ProgVersion": major, minor and revision as "2.05.09".
[[nodiscard]] std::string_view programVersion();

}  // namespace kestedit
