// The navigation list, the pages it shows, and the tables of the form: each name known, each control at one place.
#include <algorithm>
#include <map>
#include <set>

#include "editor/ChangeRules.h"
#include "editor/modCompNodes.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

struct Navigation : test::EditorTest {
    [[nodiscard]] std::vector<std::string> framesByStepping(std::string_view button) {
        std::vector<std::string> frames;
        for (std::size_t i = 0; i < form().Navigation.Nodes.size(); ++i) {
            frames.push_back(visibleFrames());
            click(button);
            EXPECT_EQ(form().FocusedControl, &form().dxTreeList1);
        }
        return frames;
    }
};
struct TabOrder : test::EditorTest {};

const std::vector<std::string> allFrames{
    "fraComment",    "fraMode",     "fraPath", "fraMonitoring", "fraExecute",     "fraFolders", "fraFiles",
    "fraExtensions", "fraFilesize", "fraDate", "fraAttributes", "fraCompression", "fraExisting"};

std::vector<std::string> allFramesBut(const std::set<std::string>& left) {
    std::vector<std::string> frames;
    std::ranges::copy_if(allFrames, std::back_inserter(frames), [&](auto& frame) { return !left.contains(frame); });
    return frames;
}

TEST_F(Navigation, SteppingShowsEveryPageOfTheViewOnceAndGoesRound) {
    const std::map<int, std::vector<std::string>> expected{
        {4, allFrames},
        {9, allFramesBut({"fraCompression"})},
        {15, allFramesBut({"fraMonitoring", "fraExecute"})},
        {23,
         {"fraPath", "fraMode", "fraFolders", "fraFiles", "fraExtensions", "fraFilesize", "fraDate", "fraAttributes",
          "fraExisting", "fraComment"}}};
    for (auto [view, frames] : expected) {
        SCOPED_TRACE(view);
        create(view);
        EXPECT_EQ(framesByStepping("cmdNext"), frames);
        EXPECT_EQ(form().Navigation.FocusedNode, 0);
        std::reverse(frames.begin() + 1, frames.end());
        EXPECT_EQ(framesByStepping("cmdPrevious"), frames);
    }
}

TEST_F(Navigation, View23PairsNameWithPaths) {
    create(23);
    EXPECT_EQ(title(0), "Auftragsname und Notizen");
    EXPECT_EQ(visibleFrames(), "fraPath");
    EXPECT_EQ(nodeOfControl(form(), form().dxName), 0);
    EXPECT_EQ(form().FocusedControl, &form().dxName);
    click("cmdPrevious");
    EXPECT_EQ(title(9), "Kommentare");
    EXPECT_EQ(visibleFrames(), "fraComment");
    EXPECT_EQ(form().lblNamePath.Caption, title(9)) << "the page is headed as its node";
    EXPECT_EQ(nodeOfControl(form(), form().dxComment), 9);
    const std::map<int, int> pages{{0, 0}, {1, 1}, {4, 2}, {5, 3}, {6, 4}, {7, 5}, {8, 6}, {9, 7}, {11, 8}};
    EXPECT_EQ(form().PageNodeIndex, pages);
}

TEST_F(Navigation, KeysAndClicksShowThePageOfTheFocusedNode) {
    create();
    constexpr int up = 38;
    constexpr int down = 40;
    form().onNodeKey(up);
    EXPECT_EQ(visibleFrames(), "fraComment");
    form().onNodeKey(down);
    EXPECT_EQ(visibleFrames(), "fraMode");
    node(12);
    form().onNodeKey(down);
    EXPECT_EQ(visibleFrames(), "fraExisting");
    expectRefused([&] { node(13); });
    expectRefused([&] { node(-1); });
}

TEST_F(Navigation, ViewsTakeChoicesAwayForGood) {
    const std::pair<int, std::set<std::string>> views[] = {{4, {}},
                                                           {9, {"optAction(3)", "optAction(4)", "optIntervall(2)"}},
                                                           {15, {}},
                                                           {23, {"optAction(3)", "optAction(4)", "optAction(5)"}}};
    for (const auto& [view, hidden] : views) {
        create(view);
        for (const int action : {2, 0, 1}) {
            act(action);
            walkAllPages();
            for (const auto base : {"optAction", "optIntervall"}) {
                for (const EditorControl* member : form().group(base))
                    EXPECT_EQ(member->Visible, !hidden.contains(member->Name())) << view << " " << member->Name();
            }
            EXPECT_TRUE(view != 9 || !form().fraExistingUnzip.Visible);
        }
    }
}

TEST_F(Navigation, UnknownViewLevelShowsNothingAndStillEdits) {
    create(7);
    EXPECT_TRUE(form().Navigation.Nodes.empty());
    click("cmdNext");
    node(3);
    form().onNodeKey(40);
    EXPECT_EQ(visibleFrames(), "");
    choose("optAction", 2);
    check("chkPreview");
    type("dxName", "a");
    click("cmdSave");
    EXPECT_EQ(jobNames(), "a.job ");
}

TEST_F(Navigation, EveryControlHasANameOfItsOwnAndAPageAndEveryRuleAControl) {
    create();
    std::set<std::string> names;
    for (const EditorControl* control : form().controls()) {
        EXPECT_TRUE(names.insert(control->Name()).second) << control->Name();
        EXPECT_EQ(form().find(control->Name()), control);
        const bool onForm = !control->Container && control->Kind != ControlKind::frame;
        EXPECT_EQ(nodeOfControl(form(), *control).has_value(), !onForm) << control->Name();
    }
    std::set<std::string_view> ruled;
    for (const ChangeRule& rule : changeRules()) {
        EXPECT_FALSE(form().group(rule.control).empty()) << rule.control;
        EXPECT_TRUE(ruled.insert(rule.control).second) << rule.control << " has two change rules";
    }
}

TEST_F(TabOrder, EveryControlThatTakesTheFocusHasOnePlace) {
    for (const int view : test::allViews) {
        create(view);
        std::set<int> places;
        std::size_t focusable = 0;
        for (const EditorControl* control : form().controls()) {
            using enum ControlKind;
            const bool still = control->Kind == frame || control->Kind == label || control->Kind == picture;
            EXPECT_EQ(control->TabIndex < 0, still) << control->Name();
            if (still) continue;
            ++focusable;
            places.insert(control->TabIndex);
        }
        EXPECT_EQ(places.size(), focusable);
        EXPECT_EQ(*places.rbegin(), static_cast<int>(focusable) - 1);
        EXPECT_EQ(form().dxTreeList1.TabIndex, 0);
        EXPECT_EQ(form().cmdSave.TabIndex, *places.rbegin());
    }
}

TEST_F(TabOrder, ZipDelCompStandsBehindZipDelDeComp) {
    create();
    int place = form().chkDestKeepZStruct.TabIndex;
    for (const auto name : {"chkZipDelDeComp", "chkZipDelDeCompBin", "chkZipDelComp", "chkZipDelCompBin",
                            "chkZipDelCompBinFolder", "dxDestZipPwd"})
        EXPECT_EQ(at(name).TabIndex, ++place) << name;
    // Program options behind their switch, which the listed order leaves a gap for.
    EXPECT_EQ(form().optExecute[0].TabIndex, form().chkExecDo.TabIndex + 1);
    EXPECT_EQ(form().chkSubFolder.TabIndex, form().dxExecMaxSec.TabIndex + 1);
}

}  // namespace
}  // namespace kestedit
