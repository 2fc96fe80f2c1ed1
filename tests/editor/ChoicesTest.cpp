// What each choice of the user makes reachable and which mark it gives its page: one walk of events for each subject.
#include <map>
#include <set>
#include <sstream>

#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

/// A choice as the user makes it: "chkSubFolder", "chkSubFolder=2", "optExt(1)", "dxZipGrade=3". A letter for each
/// group of controls that can be reached then, and the mark of the page; "any" mark is the business of another walk.
struct Step {
    std::string event, groups, mark = "any";
};

struct Walk {
    std::string_view name;
    int page;
    std::map<char, std::string> groups;
    std::vector<Step> steps;
    bool hides = true;  ///< what does not apply is hidden, or with DisableInsteadOfHide disabled, and nothing else
};

// clang-format off
const std::vector<Walk> walks{
    {"folders", 5,
     {{'a', "lblFolderTitle optFolderMatch(0) optFolderMatch(1) optFolderMatch(2) lblNoScans chkNoHiddenFolder "
            "chkNoSystemFolder chkNoReadOnlyFolder"},
      {'b', "lblFolder dxFolderMatch chkRegExFolder"},
      {'c', "chkFStruct"},
      {'d', "chkDelEFolSource"},
      {'e', "chkDelTypeSource"}},
     {{"", "", ""}, {"chkSubFolder", "ac", "8"}, {"optFolderMatch(1)", "abc", "8"}, {"chkSubFolder=2", "", ""},
      {"optAction(1)", "e", ""}, {"chkSubFolder", "abcde", "8"}, {"optAction(3)", "ab"}, {"optAction(5)", "ab"},
      {"optAction(0)", "abc", "8"}}},
    {"an inactive job, on its page", 4, {}, {{"", "", "0"}, {"chkInactive", "", "1"}, {"chkInactive=2", "", "0"}}},
    {"an inactive job, on the page of the paths", 2, {}, {{"", "", "0"}, {"chkInactive", "", ""}}},
    {"files", 6, {{'a', "lblFileName dxFileName chkRegExFile"}},
     {{"", "", ""}, {"optFileMatch(1)", "a", "8"}, {"optFileMatch(2)", "a", "8"}, {"optFileMatch(0)", "", ""}}},
    {"extensions", 7, {{'a', "lblExt dxExt"}},
     {{"", "", ""}, {"optExt(1)", "a", "8"}, {"optExt(2)", "a", "8"}, {"optExt(0)", "", ""}}},
    {"size", 8, {{'a', "dxSize lblSize"}},
     {{"", "", ""}, {"optSize(1)", "a", "8"}, {"optSize(2)", "a", "8"}, {"optSize(0)", "", ""}}},
    {"age and time stamps share a mark", 9,
     {{'a', "lblFileAgeType optFileAgeType(0) optFileAgeType(1) optFileAgeType(2)"},
      {'b', "dxAge lblFileAgeDays dxAgeHours lblFileAgeHours dxAgeMinutes lblFileAgeMinutes"},
      {'c', "lblDatefrom dxDateFrom lblDateTo dxDateTo"},
      {'d', "lblFileDateType optFileDate(0) optFileDate(1) optFileDate(2) lblFileDate dxFileDate"},
      {'t', "lblDestTime chkDestFileTime(0) chkDestFileTime(1) chkDestFileTime(2)"}},
     {{"", "t", ""}, {"optAge(1)", "abt", "8"}, {"optAge(3)", "act", "8"}, {"optAge(4)", "adt", "8"},
      {"optAge(2)", "abt", "8"}, {"chkDestFileTime(2)", "abt", "8"}, {"optAge(0)", "t", "8"},
      {"optAction(3)", "", ""}, {"optAction(5)", "t", "8"}, {"optAction(2)", "", ""}, {"optAction(1)", "t", "8"},
      {"chkDestFileTime(2)=0", "t", ""}}},
    {"attributes", 10,
     {{'a', "lblSourceAttrib optAttrSetSource(0) optAttrSetSource(1)"},
      {'b', "chkAttrArchive(2) chkAttrReadOnly(2) chkAttrSystem(2) chkAttrHidden(2)"},
      {'c', "lblDestAttrib optAttrSetDest(0) optAttrSetDest(1)"},
      {'d', "chkAttrArchive(1) chkAttrReadOnly(1) chkAttrSystem(1) chkAttrHidden(1)"}},
     {{"", "ac", ""}, {"optAttrSetSource(1)", "abc", "8"}, {"optAttrSetDest(1)", "abcd", "8"},
      {"chkAttrHidden(1)", "abcd", "8"}, {"optAttrSetSource(0)", "acd", "8"}, {"optAction(3)", "a", ""},
      {"optAction(4)", "acd", "8"}, {"optAction(2)", "", ""}, {"optAction(5)", "acd", "8"},
      {"optAttrSetDest(0)", "ac", ""}, {"chkAttrComp=2", "ac", ""}, {"chkAttrComp", "ac", "8"},
      {"chkAttrComp=0", "ac", ""}, {"chkAttrReadOnly(0)", "ac", "8"}}},
    {"existing files", 12,
     {{'a', "lblExist optExist(0) optExist(1) optExist(2) optExist(3) optExist(4)"},
      {'b', "lblRenamer dxRenamer optRenameSelect(0) optRenameSelect(1) lblAnd dxPickRenamer chkDelSourceRename"},
      {'c', "lblPickExistSelecter dxPickExistSelecter"},
      {'d', "lblExistTime optExtFileTime(0) optExtFileTime(1) optExtFileTime(2)"}},
     {{"", "a", ""}, {"optExist(1)", "ad", ""}, {"optExist(2)", "ab", ""}, {"optExist(3)", "a", ""},
      {"optExist(4)", "acd", ""}, {"chkSubFolder", "acd", "8"}, {"optAction(2)", "", "10"}, {"optAction(1)", "acd"},
      {"optAction(5)", ""}, {"optSyncExist(2)", "cd"}, {"optAction(0)", "acd"}, {"optExist(0)", "a", "8"},
      {"chkFStruct=0", "a", ""}, {"chkFStruct", "a", "8"}, {"chkSubFolder=0", "a", ""}}},
    {"conditions that compare times", 12,
     {{'a', "lblExistTime optExtFileTime(0) optExtFileTime(1) optExtFileTime(2)"}},
     {{"optExist(4)", "a"}, {"dxPickExistSelecter=2", ""}, {"dxPickExistSelecter=1", "a"},
      {"dxPickExistSelecter=5", ""}, {"dxPickExistSelecter=6", "a"}, {"optAction(5)", ""}, {"optSyncExist(2)", "a"},
      {"dxPickExistSelecter=5", ""}, {"dxPickExistSelecter=7", "a"}}},
    {"both ways and comparing delete nothing", 12, {{'a', "chkSyncDelete"}},
     {{"optAction(5)", "a"}, {"chkOnlyCompare", ""}, {"optSyncStart(1)", ""}, {"chkOnlyCompare=0", ""},
      {"optSyncStart(0)", "a"}}, false},
    {"deleting", 5, {{'a', "chkDelType lblDeleteFiles"}, {'b', "chkDelEFol"}, {'c', "lblDest(0) dxDest"}},
     {{"", "c"}, {"optAction(2)", "a"}, {"chkSubFolder", "ab"}, {"optAction(0)", "c"}, {"chkSubFolder=0", "c"},
      {"optAction(2)", "a"}, {"optAction(4)", "c"}}, false},
    {"start", 3,
     {{'a', "dxDays lblDays dxHours lblHours dxMinutes lblMinutes"},
      {'b', "optIntTime(0) optIntTime(1) optIntTime(2) optIntTime(3) lblDateTime dxDateTime"},
      {'c', "lblIntWeekDay dxIntWeekDay"},
      {'d', "lblIntMonthDay dxIntMonthDay"},
      {'e', "lblDate dxDate"},
      {'f', "lblRTMon lblMonDelay dxMonDelay lblWatchWhat dxMonWatch chkMonSubFolder"},
      {'g', "optMonitorPath(0) optMonitorPath(2)"},
      {'h', "optMonitorPath(1)"},
      {'i', "dxMonitorPath"}},
     {{"", "a", ""}, {"optIntervall(1)", "b", "8"}, {"optIntTime(1)", "bc", "8"}, {"optIntTime(2)", "bd", "8"},
      {"optIntTime(3)", "be", "8"}, {"optIntervall(2)", "fgh", "8"}, {"optMonitorPath(2)", "fghi", "8"},
      {"optAction(2)", "fgi", "8"}, {"optAction(5)", "fghi", "8"}, {"optIntervall(0)", "a", ""}}},
    {"program", 4,
     {{'a', "optExecute(0) optExecute(1) lblExecPath lblExecParam dxExecParam dxExecPath chkExecWait lblExecMaxSec"},
      {'b', "dxExecMaxSec"}},
     {{"", ""}, {"chkExecDo", "a"}, {"chkExecWait", "ab"}, {"chkExecWait=2", "a"}, {"chkExecWait", "ab"},
      {"chkExecDo=0", ""}, {"chkExecDo", "a"}}, false},
    {"free space", 4, {{'a', "dxFreeSpace"}}, {{"", ""}, {"chkFreeSpace", "a"}, {"chkFreeSpace=2", ""}}, false},
    {"archives", 11,
     {{'a', "chkZipDelCompBin chkZipDelCompBinFolder"}, {'b', "chkZipDelDeCompBin"}, {'c', "chkZipExtStruct"}},
     {{"", "", "10"}, {"optAction(3)", "", "8"}, {"chkZipDelComp", "a"}, {"chkZipAll", "a"}, {"chkSubFolder", "ac"},
      {"chkZipAll=0", "a"}, {"optAction(4)", "a", "8"}, {"chkZipDelDeComp", "ab"}, {"optAction(1)", "ab", "10"}}},
    {"frames of an action, or that it has none", 12,
     {{'p', "fraZip"}, {'u', "fraUnZip"}, {'1', "lblNoOptionMsg(0)"}, {'s', "fraSync"}, {'d', "fraZielverzeichnis"},
      {'x', "fraExistingUnzip lblDestZExist optUnZip(0) optUnZip(1) optUnZip(2)"}, {'2', "lblNoOptionMsg(1)"}},
     {{"", "1d"}, {"optAction(1)", "1d"}, {"optAction(2)", "12", "10"}, {"optAction(3)", "dp", "10"},
      {"optAction(5)", "1ds", ""}, {"optAction(2)", "12", "10"}, {"optAction(4)", "ux", ""},
      {"optAction(2)", "12", "10"}, {"optAction(1)", "1d", ""}}, false},
};
// clang-format on

struct Choices : test::EditorTest, testing::WithParamInterface<bool> {
    void SetUp() override {
        folder.file("program.ini", GetParam() ? "[EditWin]\nDisableInsteadOfHide=1\n" : "");
        create();
    }
    void run(const std::string& event) {
        if (event.empty()) return;
        EditorControl& control = at(event.substr(0, event.find('=')));
        const int value = event.find('=') == event.npos ? 1 : event.back() - '0';
        if (control.Kind == ControlKind::option) return form().onOptionChosen(control);
        if (control.Kind == ControlKind::pick) return pick(control.Name(), static_cast<std::size_t>(value));
        check(control.Name(), value);
    }
    /// The letters of the groups that can be reached; "?" behind one that can in part.
    [[nodiscard]] std::string reached(const Walk& walk) {
        std::string letters;
        for (const auto& [letter, names] : walk.groups) {
            std::set<bool> reachable;
            std::istringstream words(names);
            for (std::string name; words >> name;) {
                const EditorControl& control = at(name);
                reachable.insert(control.Enabled && control.Visible);
                EXPECT_TRUE(!walk.hides || (GetParam() ? control.Visible : control.Enabled)) << name;
            }
            if (reachable.contains(true)) letters += letter;
            if (reachable.size() > 1) letters += '?';
        }
        return letters;
    }
};
INSTANTIATE_TEST_SUITE_P(DisableOrHide, Choices, testing::Bool());

TEST_P(Choices, MakeTheirEditorsReachableAndMarkTheirPage) {
    for (const int view : {4, 15}) {
        for (const Walk& walk : walks) {
            create(view);
            const auto page = nodeOfPage(form(), static_cast<Page>(walk.page));
            for (const Step& step : walk.steps) {
                SCOPED_TRACE(std::to_string(view) + " " + std::string{walk.name} + ": " + step.event);
                run(step.event);
                EXPECT_EQ(reached(walk), step.groups);
                const std::string mark = page ? image(static_cast<std::size_t>(*page)) : step.mark;
                EXPECT_TRUE(mark == step.mark || step.mark == "any") << mark;
            }
        }
    }
}

TEST_P(Choices, FoldersInsideOfTheArchiveHaveABoxThatPackingAllDisables) {
    act(3);
    check("chkSubFolder");
    check("chkZipAll");
    EXPECT_EQ(form().chkZipIntStruct.Enabled, !GetParam());
    check("chkZipAll", 0);
    EXPECT_TRUE(form().chkZipIntStruct.Enabled && form().chkZipIntStruct.Visible);
}

}  // namespace
}  // namespace kestedit
