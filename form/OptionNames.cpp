#include "form/OptionNames.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "form/ControlNames.h"

namespace kestedit {

namespace {

struct OptionName {
    std::string_view control;
    std::string_view label;    ///< whose caption it goes by; empty: its own
    std::string_view heading;  ///< whose caption stands ahead; empty: none
};

// In the order of the pages. What is missing goes by its own caption.
// clang-format off
constexpr auto names = std::to_array<OptionName>({
    {"dxName",                 "lblName",           ""},
    {"dxComment",              "lblComment",        ""},
    {"optAction",              "lblModus",          ""},
    {"chkDelType",             "",                  "lblDeleteFiles"},
    {"dxSource",               "lblSource(0)",        ""},
    {"dxDest",                 "lblDest(0)",          ""},
    {"optIntervall",           "lblIntevalTitle",   ""},
    {"dxDays",                 "optIntervall(0)",   "lblIntevalTitle"},
    {"optIntTime",             "optIntervall(1)",   "lblIntevalTitle"},
    {"dxDateTime",             "lblDateTime",       "optIntervall(1)"},
    {"dxDate",                 "lblDate",           "optIntervall(1)"},
    {"dxIntWeekDay",           "optIntTime(1)",     "optIntervall(1)"},
    {"dxIntMonthDay",          "optIntTime(2)",     "optIntervall(1)"},
    {"optMonitorPath",         "lblRTMon",          ""},
    {"dxMonitorPath",          "optMonitorPath(2)", "lblRTMon"},
    {"dxMonDelay",             "lblMonDelay",       ""},
    {"dxMonWatch",             "lblWatchWhat",      ""},
    {"dxFreeSpace",            "chkFreeSpace",      ""},
    {"optExecute",             "lblExecTitle",      ""},
    {"dxExecPath",             "lblExecPath",       "lblExecTitle"},
    {"dxExecParam",            "lblExecParam",      "lblExecTitle"},
    {"dxExecMaxSec",           "lblExecMaxSec",     "lblExecTitle"},
    {"chkDelEFol",             "",                  "lblFindFolder"},
    {"optFolderMatch",         "lblFolderTitle",    ""},
    {"dxFolderMatch",          "lblFolder",         ""},
    {"chkRegExFolder",         "",                  "lblFolderTitle"},
    {"chkNoHiddenFolder",      "",                  "lblNoScans"},
    {"chkNoSystemFolder",      "",                  "lblNoScans"},
    {"chkNoReadOnlyFolder",    "",                  "lblNoScans"},
    {"optFileMatch",           "lblFindFiles",      ""},
    {"dxFileName",             "lblFileName",       ""},
    {"chkRegExFile",           "",                  "lblFindFiles"},
    {"optExt",                 "lblDatExt",         ""},
    {"dxExt",                  "lblExt",            ""},
    {"optSize",                "lblFileSizes",      ""},
    {"dxSize",                 "lblFileSizes",      ""},
    {"optAge",                 "lblFDate",          ""},
    {"optFileAgeType",         "lblFDate",          ""},
    {"dxAge",                  "lblFDate",          ""},
    {"dxDateFrom",             "lblDatefrom",       "optAge(3)"},
    {"dxDateTo",               "lblDateTo",         "optAge(3)"},
    {"optFileDate",            "lblFileDate",       "lblFDate"},
    {"dxFileDate",             "lblFileDate",       "lblFDate"},
    {"chkDestFileTime(0)",     "",                  "lblDestTime"},
    {"chkDestFileTime(1)",     "",                  "lblDestTime"},
    {"chkDestFileTime(2)",     "",                  "lblDestTime"},
    {"chkAttrArchive(0)",      "",                  "lblExclAttrib"},
    {"chkAttrReadOnly(0)",     "",                  "lblExclAttrib"},
    {"chkAttrSystem(0)",       "",                  "lblExclAttrib"},
    {"chkAttrHidden(0)",       "",                  "lblExclAttrib"},
    {"chkAttrNormal",          "",                  "lblExclAttrib"},
    {"chkAttrComp",            "",                  "lblExclAttrib"},
    {"chkAttrArchive(1)",      "",                  "lblDestAttrib"},
    {"chkAttrReadOnly(1)",     "",                  "lblDestAttrib"},
    {"chkAttrSystem(1)",       "",                  "lblDestAttrib"},
    {"chkAttrHidden(1)",       "",                  "lblDestAttrib"},
    {"optAttrSetDest",         "lblDestAttrib",     ""},
    {"chkAttrArchive(2)",      "",                  "lblSourceAttrib"},
    {"chkAttrReadOnly(2)",     "",                  "lblSourceAttrib"},
    {"chkAttrSystem(2)",       "",                  "lblSourceAttrib"},
    {"chkAttrHidden(2)",       "",                  "lblSourceAttrib"},
    {"optAttrSetSource",       "lblSourceAttrib",   ""},
    {"chkZipDelCompBin",       "",                  "lblSourceCompress"},
    {"chkZipDelCompBinFolder", "",                  "lblSourceCompress"},
    {"dxZipPwd",               "lblZipPwd",         "lblSourceCompress"},
    {"dxZipGrade",             "lblZipGrade",       ""},
    {"dxDestZipPwd",           "lblDestZPwd",       "lblDestZDec"},
    {"dxDestZFilter",          "lblDestZFilter",    ""},
    {"optUnZip",               "lblDestZExist",     ""},
    {"optSyncStart",           "lblSyncStart",      ""},
    {"optSyncExist",           "lblSyncFunc",       ""},
    {"optExist",               "lblExist",          ""},
    {"dxRenamer",              "lblRenamer",        "lblExist"},
    {"dxPickRenamer",          "lblRenamer",        "lblExist"},
    {"optRenameSelect",        "lblRenamer",        "lblExist"},
    {"dxPickExistSelecter",    "optExist(4)",       ""},
    {"optExtFileTime",         "lblExistTime",      ""},
    {"chkDelTypeSource",       "",                  "lblExist"},
    {"chkDelEFolSource",       "",                  "lblExist"},
});
// clang-format on

static_assert(namesNoneTwice(names, &OptionName::control), "an option has two names");
static_assert(std::ranges::all_of(names,
                                  [](const OptionName& row) {
                                      const auto isInput = isControl(row.control) || isControlBase(row.control);
                                      const auto has = [](auto name) { return name.empty() || isControl(name); };
                                      return isInput && has(row.label) && has(row.heading);
                                  }),
              "the name of an option names no control");

std::string captionOf(const FormModel& form, std::string_view control) {
    return control.empty() ? std::string{} : form.at(control).plainCaption();
}

}  // namespace

std::string nameForUsers(const FormModel& form, std::string_view control) {
    const auto* const row = std::ranges::find(names, control, &OptionName::control);
    if (row == names.end()) {
        // A field goes by the label of its name: dxVerify by lblVerify.
        const std::string label = "lbl" + std::string(control.substr(std::min(control.size(), std::size_t{2})));
        const std::string own = captionOf(form, control);
        return own.empty() && form.find(label) ? captionOf(form, label) : own;
    }
    const std::string heading = captionOf(form, row->heading);
    const std::string name = captionOf(form, row->label.empty() ? control : row->label);
    return heading.empty() || name.empty() ? heading + name : heading + ": " + name;
}

}  // namespace kestedit
