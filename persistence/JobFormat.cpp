#include "persistence/JobFormat.h"

#include <algorithm>
#include <string>

#include "form/ControlNames.h"

namespace kestedit {

namespace {

using enum ValueForm;

// Keys are an agreement with the job runners, spelling included: "NoHidenFolderScan" has one "d", "DestZipFolder"
// belongs to chkDestKeepZStruct, and "ZipDelDeCompBin" repeats chkZipDelDeComp although chkZipDelDeCompBin exists.
// clang-format off
constexpr JobRow jobRows[] = {
    {"Name",                 "dxName",                 jobName},
    {"From",                 "dxSource",               path},
    {"To",                   "dxDest",                 path},
    {"SubFolder",            "chkSubFolder",           state},
    {"FStruct",              "chkFStruct",             folderStructure},
    {"DelEFol",              "chkDelEFol",             emptyFolders},
    {"OnlyCompare",          "chkOnlyCompare",         state},
    {"DelType",              "chkDelType",             state},
    {"DelEFolSource",        "chkDelEFolSource",       state},
    {"DelTypeSource",        "chkDelTypeSource",       state},
    {"Inactive",             "chkInactive",            state},
    {"HFiles",               "chkAttrHidden(0)",       state},
    {"HFiles1",              "chkAttrHidden(1)",       state},
    {"HFiles2",              "chkAttrHidden(2)",       state},
    {"ROFiles",              "chkAttrReadOnly(0)",     state},
    {"ROFiles1",             "chkAttrReadOnly(1)",     state},
    {"ROFiles2",             "chkAttrReadOnly(2)",     state},
    {"SysFiles",             "chkAttrSystem(0)",       state},
    {"SysFiles1",            "chkAttrSystem(1)",       state},
    {"SysFiles2",            "chkAttrSystem(2)",       state},
    {"AttrNormal",           "chkAttrNormal",          state},
    {"AttrArchive",          "chkAttrArchive(0)",      state},
    {"AttrArchive1",         "chkAttrArchive(1)",      state},
    {"AttrArchive2",         "chkAttrArchive(2)",      state},
    {"AttrSetSource",        "optAttrSetSource",       optionalIndex},
    {"AttrSetDest",          "optAttrSetDest",         optionalIndex},
    {"AttrComp",             "chkAttrComp",            state},
    {"ZipAll",               "chkZipAll",              state},
    {"ZipIntStruct",         "chkZipIntStruct",        state},
    {"ZipExtStruct",         "chkZipExtStruct",        state},
    {"ZipDelComp",           "chkZipDelComp",          state},
    {"ZipDelCompBin",        "chkZipDelCompBin",       state},
    {"ZipDelCompBinFolder",  "chkZipDelCompBinFolder", state},
    {"DestZipFolder",        "chkDestKeepZStruct",     state},
    {"DestZipPwd",           "dxDestZipPwd",           password},
    {"DestZipFilter",        "dxDestZFilter",          text},
    {"ZipDelDeComp",         "chkZipDelDeComp",        state},
    {"ZipDelDeCompBin",      "chkZipDelDeComp",        writtenOnly},
    {"DestZipExist",         "optUnZip",               index},
    {"DestTCreated",         "chkDestFileTime(0)",     state},
    {"DestTModified",        "chkDestFileTime(1)",     state},
    {"DestTAccess",          "chkDestFileTime(2)",     state},
    {"RunOnce",              "chkRunOnce",             state},
    {"DoPreview",            "chkPreview",             state},
    {"ChkFreeSpace",         "chkFreeSpace",           state},
    {"FreeSpaceVal",         "dxFreeSpace",            freeSpace},
    {"ExecDo",               "chkExecDo",              state},
    {"Execution",            "optExecute",             index},
    {"ExecPath",             "dxExecPath",             text},
    {"ExecParam",            "dxExecParam",            text},
    {"ExecWait",             "chkExecWait",            state},
    {"ExecMaxSec",           "dxExecMaxSec",           number},
    {"NoHidenFolderScan",    "chkNoHiddenFolder",      state},
    {"NoSystemFolderScan",   "chkNoSystemFolder",      state},
    {"NoReadOnlyFolderScan", "chkNoReadOnlyFolder",    state},
    {"RunState",             "",                       zero},
    {"ZipPwd",               "dxZipPwd",               password},
    {"FileName",             "dxFileName",             text},
    {"FolderMatch",          "dxFolderMatch",          text},
    {"UseFileRegEx",         "chkRegExFile",           state},
    {"UseFolderRegEx",       "chkRegExFolder",         state},
    {"Ext",                  "dxExt",                  text},
    {"Action",               "optAction",              actionIndex},
    {"FileAgeDays",          "",                       empty},
    {"DateFrom",             "dxDateFrom",             startDate},
    {"DateTo",               "dxDateTo",               date},
    {"FileDateDate",         "dxFileDate",             date},
    {"FileDateOpt",          "optFileDate",            index},
    {"FileAge",              "optAge",                 index},
    {"FileAgeType",          "optFileAgeType",         index},
    {"Exist",                "optExist",               index},
    {"SyncExist",            "optSyncExist",           index},
    {"SyncStart",            "optSyncStart",           index},
    {"SyncDelete",           "chkSyncDelete",          state},
    {"ExtOpt",               "optExt",                 extensionIndex},
    {"DoFileMatch",          "optFileMatch",           index},
    {"DoFolderMatch",        "optFolderMatch",         index},
    {"FileOpt",              "optSize",                sizeIndex},
    {"FileSize",             "dxSize",                 number},
    {"PickRenamer",          "dxPickRenamer",          renameScheme},
    {"RenameType",           "optRenameSelect",        index},
    {"RenameTxt",            "dxRenamer",              text},
    {"Comment",              "dxComment",              comment},
    {"NodeIcon",             "",                       nodeIcon},
    {"ZipGrade",             "dxZipGrade",             compressionLevel},
    {"ExtFileTime",          "optExtFileTime",         index},
    {"FileAgeDiff",          "dxAge",                  ageMinutes},
    {"EFSelect",             "dxPickExistSelecter",    listPosition},
    {"EFSDelete",            "chkDelSourceRename",     state},
    {"IntervalType",         "optIntervall",           index},
    {"MonPathOpt",           "optMonitorPath",         index},
    {"MonitorPath",          "dxMonitorPath",          path},
    {"MonDelay",             "dxMonDelay",             number},
    {"MonWatch",             "dxMonWatch",             listPosition},
    {"MonSubFolder",         "chkMonSubFolder",        state},
    {"Interval",             "dxDays",                 interval},
    {"Counter",              "dxDays",                 intervalCopy},
    {"IntervalDate",         "dxDate",                 intervalDate},
    {"IntervalTime",         "dxDateTime",             timeOfDay},
    {"IntState",             "",                       intervalState},
    {"IntTimeType",          "optIntTime",             index},
    {"IntWeekDay",           "dxIntWeekDay",           weekDay},
    {"IntMonthDay",          "dxIntMonthDay",          number},
};
// clang-format on

/// Whether a row's control is one that its form can stand for: a whole group for an index, one control for the rest.
constexpr bool fitsItsForm(const JobRow& row) {
    const bool group = row.form == index || row.form == optionalIndex || row.form == actionIndex ||
                       row.form == extensionIndex || row.form == sizeIndex;
    if (row.control.empty())
        return row.form == zero || row.form == empty || row.form == nodeIcon || row.form == intervalState;
    return group ? isControlBase(row.control) && !isControl(row.control) : isControl(row.control);
}
static_assert(std::ranges::all_of(jobRows, fitsItsForm), "a row names no control that its form can stand for");
static_assert(namesNoneTwice(std::span{jobRows}, &JobRow::key), "a key stands twice");

std::string twoDigits(std::string_view number) {
    return (number.size() < 2 ? "0" : "") + std::string{number};
}

}  // namespace

std::span<const JobRow> jobFormat() {
    return jobRows;
}

std::string_view programVersion() {
    static const std::string version =
        KESTEDIT_VERSION_MAJOR "." + twoDigits(KESTEDIT_VERSION_MINOR) + "." + twoDigits(KESTEDIT_VERSION_PATCH);
    return version;
}

}  // namespace kestedit
