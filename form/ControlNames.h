// The names of the form's controls, so that tables which name controls are checked when they are compiled.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <string_view>

namespace kestedit {

struct ControlName {
    std::string_view base;
    int members = 0;  ///< of a control array; 0: the control stands alone
};

/// In the order of FormModel, which declares the controls themselves. Test: FormModel.HasTheControlsOfTheListOfNames.
// clang-format off
inline constexpr auto controlNames = std::to_array<ControlName>({
    {"dxTreeList1"}, {"cmdPrevious"}, {"cmdNext"}, {"cmdCancel"}, {"cmdSave"}, {"Image1"}, {"fraComment"},
    {"lblNamePath"}, {"lblName"}, {"dxName"}, {"lblComment"}, {"dxComment"}, {"fraMode"}, {"lblModus"},
    {"optAction", 6}, {"lblDeleteFiles"}, {"chkDelType"}, {"lblModeSub"}, {"chkPreview"}, {"chkOnlyCompare"},
    {"fraPath"}, {"lblSource", 1}, {"dxSource"}, {"lblDest", 1}, {"dxDest"}, {"chkEditPaths"}, {"lblChkPathMsg"},
    {"fraMonitoring"}, {"lblExecution"}, {"lblIntevalTitle"}, {"optIntervall", 3}, {"dxDays"}, {"lblDays"},
    {"dxHours"}, {"lblHours"}, {"dxMinutes"}, {"lblMinutes"}, {"optIntTime", 4}, {"lblDateTime"}, {"dxDateTime"},
    {"lblIntWeekDay"}, {"dxIntWeekDay"}, {"lblIntMonthDay"}, {"dxIntMonthDay"}, {"lblDate"}, {"dxDate"},
    {"lblChkTimeMsg"}, {"lblRTMon"}, {"optMonitorPath", 3}, {"dxMonitorPath"}, {"lblMonDelay"}, {"dxMonDelay"},
    {"lblWatchWhat"}, {"dxMonWatch"}, {"chkMonSubFolder"}, {"fraExecute"}, {"lblMonitoring"}, {"chkInactive"},
    {"chkRunOnce"}, {"chkFreeSpace"}, {"dxFreeSpace"}, {"lblExecTitle"}, {"chkExecDo"}, {"optExecute", 2},
    {"lblExecPath"}, {"dxExecPath"}, {"lblExecParam"}, {"dxExecParam"}, {"chkExecWait"}, {"lblExecMaxSec"},
    {"dxExecMaxSec"}, {"fraFolders"}, {"lblBehaviour"}, {"lblFindFolder"}, {"chkSubFolder"}, {"lblFolderTitle"},
    {"optFolderMatch", 3}, {"lblFolder"}, {"dxFolderMatch"}, {"chkRegExFolder"}, {"lblNoScans"},
    {"chkNoHiddenFolder"}, {"chkNoSystemFolder"}, {"chkNoReadOnlyFolder"}, {"chkDelEFol"}, {"fraFiles"},
    {"lblSearch"}, {"lblFindFiles"}, {"optFileMatch", 3}, {"lblFileName"}, {"dxFileName"}, {"chkRegExFile"},
    {"fraExtensions"}, {"lblFileExt"}, {"lblDatExt"}, {"optExt", 3}, {"lblExt"}, {"dxExt"}, {"fraFilesize"},
    {"lblFileSize"}, {"lblFileSizes"}, {"optSize", 3}, {"dxSize"}, {"lblSize"}, {"fraDate"}, {"lblFileAge"},
    {"lblFDate"}, {"optAge", 5}, {"lblFileAgeType"}, {"optFileAgeType", 3}, {"dxAge"}, {"lblFileAgeDays"},
    {"dxAgeHours"}, {"lblFileAgeHours"}, {"dxAgeMinutes"}, {"lblFileAgeMinutes"}, {"lblDatefrom"}, {"dxDateFrom"},
    {"lblDateTo"}, {"dxDateTo"}, {"lblFileDateType"}, {"optFileDate", 3}, {"lblFileDate"}, {"dxFileDate"},
    {"lblDestTime"}, {"chkDestFileTime", 3}, {"fraAttributes"}, {"lblAttrib"}, {"lblExclAttrib"}, {"lblSourceAttrib"},
    {"lblDestAttrib"}, {"chkAttrArchive", 3}, {"chkAttrReadOnly", 3}, {"chkAttrSystem", 3}, {"chkAttrHidden", 3},
    {"chkAttrNormal"}, {"chkAttrComp"}, {"optAttrSetSource", 2}, {"optAttrSetDest", 2}, {"fraCompression"},
    {"lblDestination"}, {"fraZip"}, {"lblSourceCompress"}, {"chkZipIntStruct"}, {"chkZipAll"}, {"chkZipExtStruct"},
    {"chkZipDelComp"}, {"chkZipDelCompBin"}, {"chkZipDelCompBinFolder"}, {"lblZipPwd"}, {"dxZipPwd"}, {"lblZipGrade"},
    {"dxZipGrade"}, {"fraUnZip"}, {"lblDestZDec"}, {"chkDestKeepZStruct"}, {"chkZipDelDeComp"},
    {"chkZipDelDeCompBin"}, {"lblDestZPwd"}, {"dxDestZipPwd"}, {"lblDestZFilter"}, {"dxDestZFilter"}, {"fraExisting"},
    {"lblKeepFolders"}, {"lblNoOptionMsg", 2}, {"fraSync"}, {"lblSyncTitle"}, {"lblSyncStart"}, {"optSyncStart", 2},
    {"lblSyncStartWay", 2}, {"lblSyncFunc"}, {"optSyncExist", 3}, {"chkSyncDelete"}, {"fraZielverzeichnis"},
    {"chkFStruct"}, {"lblExist"}, {"optExist", 5}, {"lblRenamer"}, {"dxRenamer"}, {"lblAnd"}, {"dxPickRenamer"},
    {"optRenameSelect", 2}, {"chkDelSourceRename"}, {"lblPickExistSelecter"}, {"dxPickExistSelecter"},
    {"lblExistTime"}, {"optExtFileTime", 3}, {"chkDelTypeSource"}, {"chkDelEFolSource"}, {"fraExistingUnzip"},
    {"lblDestZExist"}, {"optUnZip", 3},
});
// clang-format on

/// Whether `name` is a control: "dxName", "optExist(2)".
[[nodiscard]] constexpr bool isControl(std::string_view name) {
    const auto open = name.find('(');
    const auto* const found = std::ranges::find(controlNames, name.substr(0, open), &ControlName::base);
    if (found == controlNames.end()) return false;
    if (open == std::string_view::npos) return found->members == 0;
    const std::string_view index = name.substr(open + 1);
    return index.size() == 2 && index[1] == ')' && index[0] >= '0' && index[0] - '0' < found->members;
}

/// Whether `name` is a control that stands alone or the base name of an array: "dxName", "optExist".
[[nodiscard]] constexpr bool isControlBase(std::string_view name) {
    return std::ranges::find(controlNames, name, &ControlName::base) != controlNames.end();
}

/// Whether each row of a table names a control, or where the row may be about a whole array its base name.
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesControls(const Table& table, Name name) {
    return std::ranges::all_of(table, isControl, name);
}
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesControlBases(const Table& table, Name name) {
    return std::ranges::all_of(table, isControlBase, name);
}

/// Whether no two rows of a table have the same name.
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesNoneTwice(const Table& table, Name name) {
    for (auto row = table.begin(); row != table.end(); ++row) {
        const auto rest = std::ranges::subrange(std::next(row), table.end());
        if (std::ranges::find(rest, std::invoke(name, *row), name) != table.end()) return false;
    }
    return true;
}

}  // namespace kestedit
