#include "editor/modTabOrder.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "form/ControlNames.h"

namespace kestedit {

namespace {

struct TabPlace {
    int index;
    std::string_view control;
};

// Number 41 is given to no control, and chkZipDelComp stands twice: its second place, behind chkZipDelDeComp, counts.
// Story: tests/golden/pages.golden.
// clang-format off
constexpr std::array tabList{
    TabPlace{  0, "dxTreeList1"},         TabPlace{  1, "dxName"},              TabPlace{  2, "dxComment"},
    TabPlace{  3, "dxSource"},            TabPlace{  4, "dxDest"},              TabPlace{  5, "chkEditPaths"},
    TabPlace{  6, "optAction(0)"},        TabPlace{  7, "optAction(1)"},        TabPlace{  8, "optAction(2)"},
    TabPlace{  9, "optAction(5)"},        TabPlace{ 10, "optAction(3)"},        TabPlace{ 11, "optAction(4)"},
    TabPlace{ 12, "chkDelType"},          TabPlace{ 13, "chkPreview"},          TabPlace{ 14, "chkOnlyCompare"},
    TabPlace{ 15, "optIntervall(0)"},     TabPlace{ 16, "optIntervall(1)"},     TabPlace{ 17, "optIntervall(2)"},
    TabPlace{ 18, "dxDays"},              TabPlace{ 19, "dxHours"},             TabPlace{ 20, "dxMinutes"},
    TabPlace{ 21, "optIntTime(0)"},       TabPlace{ 22, "optIntTime(1)"},       TabPlace{ 23, "optIntTime(2)"},
    TabPlace{ 24, "optIntTime(3)"},       TabPlace{ 25, "dxDateTime"},          TabPlace{ 26, "dxIntWeekDay"},
    TabPlace{ 27, "dxIntMonthDay"},       TabPlace{ 28, "dxDate"},              TabPlace{ 29, "optMonitorPath(0)"},
    TabPlace{ 30, "optMonitorPath(1)"},   TabPlace{ 31, "optMonitorPath(2)"},   TabPlace{ 32, "dxMonDelay"},
    TabPlace{ 33, "dxMonWatch"},          TabPlace{ 34, "chkMonSubFolder"},     TabPlace{ 35, "dxMonitorPath"},
    TabPlace{ 36, "chkInactive"},         TabPlace{ 37, "chkRunOnce"},          TabPlace{ 38, "chkFreeSpace"},
    TabPlace{ 39, "dxFreeSpace"},         TabPlace{ 40, "chkExecDo"},
    TabPlace{ 42, "chkSubFolder"},        TabPlace{ 43, "optFolderMatch(0)"},   TabPlace{ 44, "optFolderMatch(1)"},
    TabPlace{ 45, "optFolderMatch(2)"},   TabPlace{ 46, "dxFolderMatch"},       TabPlace{ 47, "chkRegExFolder"},
    TabPlace{ 48, "chkNoHiddenFolder"},   TabPlace{ 49, "chkNoSystemFolder"},   TabPlace{ 50, "chkNoReadOnlyFolder"},
    TabPlace{ 51, "chkDelEFol"},          TabPlace{ 52, "optFileMatch(0)"},     TabPlace{ 53, "optFileMatch(1)"},
    TabPlace{ 54, "optFileMatch(2)"},     TabPlace{ 55, "dxFileName"},          TabPlace{ 56, "chkRegExFile"},
    TabPlace{ 57, "optExt(0)"},           TabPlace{ 58, "optExt(1)"},           TabPlace{ 59, "optExt(2)"},
    TabPlace{ 60, "dxExt"},               TabPlace{ 61, "optSize(0)"},          TabPlace{ 62, "optSize(1)"},
    TabPlace{ 63, "optSize(2)"},          TabPlace{ 64, "dxSize"},              TabPlace{ 65, "optAge(0)"},
    TabPlace{ 66, "optAge(1)"},           TabPlace{ 67, "optAge(2)"},           TabPlace{ 68, "optAge(3)"},
    TabPlace{ 69, "optAge(4)"},           TabPlace{ 70, "optFileAgeType(0)"},   TabPlace{ 71, "optFileAgeType(1)"},
    TabPlace{ 72, "optFileAgeType(2)"},   TabPlace{ 73, "dxAge"},               TabPlace{ 74, "dxAgeHours"},
    TabPlace{ 75, "dxAgeMinutes"},        TabPlace{ 76, "dxDateFrom"},          TabPlace{ 77, "dxDateTo"},
    TabPlace{ 78, "optFileDate(0)"},      TabPlace{ 79, "optFileDate(1)"},      TabPlace{ 80, "optFileDate(2)"},
    TabPlace{ 81, "dxFileDate"},          TabPlace{ 82, "chkDestFileTime(0)"},  TabPlace{ 83, "chkDestFileTime(1)"},
    TabPlace{ 84, "chkDestFileTime(2)"},  TabPlace{ 85, "chkAttrArchive(0)"},   TabPlace{ 86, "chkAttrComp"},
    TabPlace{ 87, "chkAttrNormal"},       TabPlace{ 88, "chkAttrReadOnly(0)"},  TabPlace{ 89, "chkAttrSystem(0)"},
    TabPlace{ 90, "chkAttrHidden(0)"},    TabPlace{ 91, "optAttrSetSource(0)"}, TabPlace{ 92, "optAttrSetSource(1)"},
    TabPlace{ 93, "chkAttrArchive(2)"},   TabPlace{ 94, "chkAttrReadOnly(2)"},  TabPlace{ 95, "chkAttrSystem(2)"},
    TabPlace{ 96, "chkAttrHidden(2)"},    TabPlace{ 97, "optAttrSetDest(0)"},   TabPlace{ 98, "optAttrSetDest(1)"},
    TabPlace{ 99, "chkAttrArchive(1)"},   TabPlace{100, "chkAttrReadOnly(1)"},  TabPlace{101, "chkAttrSystem(1)"},
    TabPlace{102, "chkAttrHidden(1)"},    TabPlace{103, "chkZipIntStruct"},     TabPlace{104, "chkZipAll"},
    TabPlace{105, "chkZipExtStruct"},     TabPlace{106, "chkZipDelComp"},       TabPlace{107, "dxZipPwd"},
    TabPlace{108, "dxZipGrade"},          TabPlace{109, "chkDestKeepZStruct"},  TabPlace{110, "chkZipDelDeComp"},
    TabPlace{111, "chkZipDelComp"},       TabPlace{112, "dxDestZipPwd"},        TabPlace{113, "dxDestZFilter"},
    TabPlace{114, "optSyncStart(0)"},     TabPlace{115, "optSyncStart(1)"},     TabPlace{116, "optSyncExist(0)"},
    TabPlace{117, "optSyncExist(1)"},     TabPlace{118, "optSyncExist(2)"},     TabPlace{119, "chkFStruct"},
    TabPlace{120, "optExist(0)"},         TabPlace{121, "optExist(3)"},         TabPlace{122, "optExist(1)"},
    TabPlace{123, "optExist(2)"},         TabPlace{124, "optExist(4)"},         TabPlace{125, "dxRenamer"},
    TabPlace{126, "dxPickRenamer"},       TabPlace{127, "optRenameSelect(0)"},  TabPlace{128, "optRenameSelect(1)"},
    TabPlace{129, "dxPickExistSelecter"}, TabPlace{130, "chkDelSourceRename"},  TabPlace{131, "optExtFileTime(0)"},
    TabPlace{132, "optExtFileTime(1)"},   TabPlace{133, "optExtFileTime(2)"},   TabPlace{134, "chkDelTypeSource"},
    TabPlace{135, "chkDelEFolSource"},    TabPlace{136, "optUnZip(0)"},         TabPlace{137, "optUnZip(1)"},
    TabPlace{138, "optUnZip(2)"},         TabPlace{139, "cmdPrevious"},         TabPlace{140, "cmdNext"},
    TabPlace{141, "cmdCancel"},           TabPlace{142, "cmdSave"},
};

/// A control that the list leaves out, and the one right behind which it stands. What neither table names stands behind
/// the control that is declared before it.
struct Follower {
    std::string_view control;
    std::string_view governor;
};

// Followers of one governor stand in reverse: each is put right behind it.
constexpr std::array followers{
    Follower{"dxExecMaxSec",          "chkExecDo"},
    Follower{"chkExecWait",           "chkExecDo"},
    Follower{"dxExecParam",           "chkExecDo"},
    Follower{"dxExecPath",            "chkExecDo"},
    Follower{"optExecute(1)",         "chkExecDo"},
    Follower{"optExecute(0)",         "chkExecDo"},
    Follower{"chkZipDelDeCompBin",    "chkZipDelDeComp"},
    Follower{"chkZipDelCompBinFolder","chkZipDelComp"},
    Follower{"chkZipDelCompBin",      "chkZipDelComp"},
    Follower{"chkSyncDelete",         "optSyncStart(1)"},
};
// clang-format on

static_assert(namesControls(tabList, &TabPlace::control), "a place names no control");
static_assert(std::ranges::is_sorted(tabList, {}, &TabPlace::index), "places stand in their order");
static_assert(namesControls(followers, &Follower::control) && namesControls(followers, &Follower::governor),
              "a follower names no control");
static_assert(namesNoneTwice(followers, &Follower::control), "a control follows two others");

using Sequence = std::vector<EditorControl*>;

// The rule of a tab sequence: the control moves to that place, and those from there on one place back.
void moveTo(Sequence& sequence, EditorControl* control, std::size_t place) {
    std::erase(sequence, control);
    sequence.insert(sequence.begin() + static_cast<std::ptrdiff_t>(std::min(place, sequence.size())), control);
}

Sequence focusableControls(const FormModel& form) {
    Sequence sequence;
    std::ranges::copy_if(form.controls(), std::back_inserter(sequence), [](const EditorControl* control) {
        return control->Kind != ControlKind::frame && control->Kind != ControlKind::label &&
               control->Kind != ControlKind::picture;
    });
    return sequence;
}

template <typename Table, typename Name>
bool isIn(const Table& table, Name name, const EditorControl& control) {
    return std::ranges::find(table, control.Name(), name) != table.end();
}

void putBehind(Sequence& sequence, EditorControl* control, const EditorControl* governor) {
    std::erase(sequence, control);
    sequence.insert(std::next(std::ranges::find(sequence, governor)), control);
}

}  // namespace

void SetTabOrder(FormModel& form) {
    const Sequence declared = focusableControls(form);
    Sequence sequence = declared;
    for (const TabPlace& row : tabList)
        moveTo(sequence, &form.at(row.control), static_cast<std::size_t>(row.index));
    for (const Follower& row : followers)
        putBehind(sequence, &form.at(row.control), &form.at(row.governor));
    for (std::size_t i = 1; i < declared.size(); ++i) {
        const bool placed =
            isIn(tabList, &TabPlace::control, *declared[i]) || isIn(followers, &Follower::control, *declared[i]);
        if (!placed) putBehind(sequence, declared[i], declared[i - 1]);
    }
    int index = 0;
    for (EditorControl* control : sequence)
        control->TabIndex = index++;
}

}  // namespace kestedit
