#include <algorithm>
#include <array>

#include "form/ControlNames.h"
#include "i18n/LoadLanguage.h"

namespace kestedit {

namespace {

using enum TextTarget::Kind;

constexpr TextTarget text(int key, std::string_view control) {
    return {key, caption, control};
}
constexpr TextTarget tip(int key, std::string_view control) {
    return {key, toolTip, control};
}
constexpr TextTarget entry(int key, std::string_view list, int index) {
    return {key, item, list, index};
}
constexpr TextTarget cat(int key, int index) {
    return {key, catalogue, {}, index};
}
constexpr TextTarget blank(int key, int index) {
    return {key, catalogueBlank, {}, index};
}

// A line to a key: `text` is a caption, `tip` a tool tip, `entry` an entry of a pick list, `cat` an entry of the
// catalogue, `blank` one with a blank behind the text. Not every text is seen: of two keys for one label the later one
// is (lblComment 81, lblDestZExist 139, lblDestZDec 142 and lblDestZFilter 145 give way to 179, 156, 154 and 155),
// rules put the unit's name in the place of 58, the node's title in that of 25 and 80, a longer sentence in that of 79;
// i18n/Catalogue.h names the entries of the catalogue that nothing asks for.
// clang-format off
constexpr auto table = std::to_array<TextTarget>({
    cat(0, 0),
    cat(1, 1),
    cat(2, 45), text(2, "lblFileAge"),
    text(3, "lblName"),
    cat(4, 70), text(4, "lblSource(0)"),
    cat(5, 71), text(5, "lblDest(0)"),
    text(6, "optAction(0)"),
    text(7, "optAction(1)"),
    text(8, "optAction(2)"),
    text(9, "chkSubFolder"),
    blank(10, 4), text(10, "chkFStruct"),
    text(11, "chkInactive"),
    text(12, "lblIntevalTitle"),
    cat(13, 2),
    cat(14, 3),
    cat(15, 43), text(15, "lblFileExt"),
    text(16, "optExt(0)"), text(16, "optFileMatch(0)"), text(16, "optFolderMatch(0)"), text(16, "optAge(0)"),
    text(17, "optExt(1)"), text(17, "optFileMatch(1)"), text(17, "optFolderMatch(1)"),
    text(18, "optExt(2)"), text(18, "optFileMatch(2)"), text(18, "optFolderMatch(2)"),
    text(19, "lblExt"),
    cat(20, 44), text(20, "lblFileSize"),
    text(21, "optSize(0)"),
    text(22, "optSize(1)"),
    text(23, "optSize(2)"),
    text(24, "lblSize"),
    cat(25, 13), cat(25, 48), cat(25, 75), text(25, "lblKeepFolders"),
    cat(26, 72), text(26, "optUnZip(0)"), text(26, "optExist(0)"),
    text(27, "optExist(1)"),
    cat(28, 14), text(28, "optExist(2)"),
    cat(29, 15), text(29, "optUnZip(1)"), text(29, "optSyncExist(1)"), text(29, "optExist(3)"),
    cat(30, 46), text(30, "lblAttrib"),
    text(31, "chkAttrHidden(0)"), text(31, "chkAttrHidden(1)"), text(31, "chkAttrHidden(2)"),
    text(32, "chkAttrReadOnly(0)"), text(32, "chkAttrReadOnly(1)"), text(32, "chkAttrReadOnly(2)"),
    text(33, "chkAttrSystem(0)"), text(33, "chkAttrSystem(1)"), text(33, "chkAttrSystem(2)"),
    blank(34, 5), text(34, "chkDelEFol"), text(34, "chkDelEFolSource"), text(34, "chkZipDelCompBinFolder"),
    text(35, "chkDelType"), text(35, "chkDelTypeSource"), text(35, "chkZipDelCompBin"), text(35, "chkZipDelDeCompBin"),
    text(36, "chkRunOnce"),
    tip(37, "chkRunOnce"),
    text(38, "chkZipAll"),
    text(39, "lblZipPwd"), text(39, "lblDestZPwd"),
    text(40, "lblZipGrade"),
    cat(41, 6),
    cat(42, 7),
    cat(43, 8),
    cat(44, 9),
    cat(45, 35), text(45, "lblFileName"),
    text(46, "lblRenamer"),
    text(47, "lblAnd"),
    cat(48, 10),
    cat(49, 11),
    cat(50, 12),
    cat(51, 16), text(51, "optExist(4)"), text(51, "optSyncExist(2)"),
    cat(52, 17), text(52, "lblExist"),
    cat(53, 18),
    cat(54, 19),
    cat(55, 20),
    text(56, "optAge(1)"), text(56, "optFileDate(0)"),
    text(57, "optAge(2)"), text(57, "optFileDate(1)"),
    text(58, "lblFileAgeDays"),
    cat(59, 21),
    cat(60, 22),
    cat(61, 23),
    cat(62, 24),
    cat(63, 25),
    cat(64, 26),
    cat(65, 39), text(65, "lblModus"),
    cat(66, 60), text(66, "lblMonitoring"),
    cat(67, 41), text(67, "lblBehaviour"),
    cat(68, 42), text(68, "lblSearch"),
    cat(69, 47), text(69, "lblDestination"),
    text(70, "chkFreeSpace"),
    text(71, "lblFolderTitle"),
    cat(72, 36), text(72, "lblFolder"),
    cat(73, 40), text(73, "lblExecution"),
    cat(74, 34),
    cat(75, 33),
    text(76, "chkRegExFile"), text(76, "chkRegExFolder"),
    text(77, "chkPreview"),
    cat(78, 37),
    cat(79, 66), text(79, "lblNoOptionMsg(0)"), text(79, "lblNoOptionMsg(1)"),
    cat(80, 49), text(80, "lblNamePath"),
    cat(81, 38), text(81, "lblComment"),
    text(82, "chkZipIntStruct"),
    text(83, "chkZipExtStruct"),
    tip(84, "dxRenamer"),
    tip(85, "dxExt"),
    cat(86, 50),
    cat(87, 51),
    text(88, "optFileAgeType(0)"), text(88, "optExtFileTime(0)"), text(88, "chkDestFileTime(0)"),
    text(89, "optFileAgeType(1)"), text(89, "optExtFileTime(1)"), text(89, "chkDestFileTime(1)"),
    text(90, "optFileAgeType(2)"), text(90, "optExtFileTime(2)"), text(90, "chkDestFileTime(2)"),
    text(91, "lblDateTime"),
    text(92, "lblDate"),
    text(93, "optIntervall(0)"),
    text(94, "optIntervall(1)"),
    cat(95, 52),
    cat(96, 53),
    cat(97, 54),
    cat(98, 55),
    cat(99, 56),
    cat(100, 57),
    cat(101, 58),
    cat(102, 59),
    text(103, "chkEditPaths"),
    tip(104, "optSyncStart(0)"),
    tip(105, "optSyncStart(1)"),
    text(106, "chkDelSourceRename"),
    text(107, "lblExclAttrib"),
    text(108, "chkAttrArchive(0)"), text(108, "chkAttrArchive(1)"), text(108, "chkAttrArchive(2)"),
    text(109, "chkAttrNormal"),
    text(110, "chkAttrComp"),
    cat(111, 61),
    cat(112, 62), text(112, "lblFileDate"), text(112, "optIntTime(3)"), text(112, "optAge(4)"),
    text(113, "optIntTime(0)"),
    text(114, "optIntTime(1)"),
    text(115, "optIntTime(2)"),
    text(116, "lblExistTime"),
    text(117, "optRenameSelect(0)"),
    text(118, "optRenameSelect(1)"),
    text(119, "lblSourceAttrib"),
    text(120, "lblDestAttrib"),
    text(121, "optAttrSetSource(0)"), text(121, "optAttrSetDest(0)"),
    text(122, "optAttrSetSource(1)"), text(122, "optAttrSetDest(1)"),
    text(123, "optIntervall(2)"),
    text(124, "optMonitorPath(0)"),
    text(125, "optMonitorPath(1)"),
    text(126, "optMonitorPath(2)"),
    text(127, "lblMonDelay"),
    text(128, "lblWatchWhat"),
    entry(129, "dxMonWatch", 0),
    entry(130, "dxMonWatch", 1),
    entry(131, "dxMonWatch", 2),
    entry(132, "dxMonWatch", 3),
    entry(133, "dxMonWatch", 4),
    text(134, "chkExecDo"),
    text(135, "lblDatefrom"),
    text(136, "lblDateTo"),
    text(137, "optAge(3)"),
    text(138, "optFileDate(2)"),
    text(139, "lblDestZExist"),
    cat(140, 68), text(140, "optSyncStart(0)"),
    text(141, "lblSourceCompress"),
    text(142, "lblDestZDec"),
    text(143, "lblExecTitle"),
    text(144, "chkDestKeepZStruct"),
    text(145, "lblDestZFilter"),
    text(146, "lblDestTime"),
    text(147, "chkMonSubFolder"),
    text(148, "lblFindFolder"),
    text(149, "lblFindFiles"),
    cat(150, 64), text(150, "lblDatExt"),
    text(151, "lblFileSizes"),
    text(152, "lblFDate"),
    text(153, "optAction(4)"),
    text(154, "lblDestZDec"),
    text(155, "lblDestZFilter"),
    text(156, "lblDestZExist"),
    cat(157, 69), text(157, "optSyncStart(1)"),
    cat(158, 67),
    cat(159, 65), text(159, "optAction(5)"),
    text(160, "lblSyncStart"),
    text(161, "lblSyncFunc"),
    cat(162, 73),
    cat(163, 74), text(163, "lblSyncTitle"),
    cat(164, 76),
    text(165, "lblModeSub"),
    cat(166, 63),
    text(167, "optAction(3)"),
    text(168, "chkZipDelComp"),
    text(169, "chkZipDelDeComp"),
    text(170, "lblDeleteFiles"),
    text(171, "lblRTMon"),
    tip(172, "chkRegExFile"), tip(172, "chkRegExFolder"),
    text(173, "chkNoHiddenFolder"),
    text(174, "chkNoSystemFolder"),
    text(175, "chkNoReadOnlyFolder"),
    text(176, "lblNoScans"),
    cat(177, 77), text(177, "chkOnlyCompare"),
    cat(178, 78), text(178, "optUnZip(2)"),
    text(179, "lblComment"),
    cat(180, 79),
    cat(181, 80),
    cat(182, 81),
    cat(183, 82),
    text(184, "chkSyncDelete"),
    text(185, "optExecute(0)"),
    text(186, "optExecute(1)"),
    text(187, "lblExecPath"),
    text(188, "lblExecParam"),
    text(189, "chkExecWait"),
    text(190, "lblExecMaxSec"),
    cat(191, 83),
    cat(192, 84),
});
// clang-format on

static_assert(std::ranges::is_sorted(table, {}, &TextTarget::key), "each text is read once, at its first row");
static_assert(std::ranges::adjacent_find(table, [](auto& row, auto& next) { return next.key > row.key + 1; }) ==
                  table.end(),
              "every key has a use");
static_assert(std::ranges::all_of(table,
                                  [](const TextTarget& row) {
                                      return row.control.empty() ? static_cast<std::size_t>(row.index) < catalogueSize
                                                                 : isControl(row.control);
                                  }),
              "a text goes to a control or to an entry of the catalogue");

}  // namespace

std::span<const TextTarget> formTexts() {
    return table;
}

}  // namespace kestedit
