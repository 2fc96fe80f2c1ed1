// The choice of the action and what follows from it; the rule pass of all pages.

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "editor/rules/RefreshPageStates.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using test::dumpOf;
using test::marksOf;

constexpr std::array<std::array<std::string_view, 2>, test::actionCount> images{
    {{"2", "3"}, {"4", "5"}, {"6", "7"}, {"9", "13"}, {"14", "15"}, {"12", "11"}}};

struct ActionRules : test::EditorTest {
    /// A job that was made with this action and nothing else.
    void saveJobOf(int action) {
        create();
        act(action);
        type("dxName", "job" + std::to_string(action));
        click("cmdSave");
    }
    [[nodiscard]] bool offers(int action) { return form().optAction[static_cast<std::size_t>(action)].Visible; }
};

/// Marks of a job of that action whose other pages are at their neutral choices.
std::string neutralMarks(int action, int view) {
    std::array<std::string, 13> pages;
    pages[1] = images[static_cast<std::size_t>(action)][0];
    pages[2] = pages[4] = view == 23 ? "" : "0";
    pages[11] = action == 3 || action == 4 ? "8" : "10";
    pages[12] = action == 2 && view != 23 ? "10" : "";
    const std::map<int, std::vector<std::size_t>> left{{4, {}}, {9, {11}}, {15, {3, 4}}, {23, {2, 3, 4, 11}}};
    std::string marks;
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (std::ranges::find(left.at(view), page) != left.at(view).end()) continue;
        marks += (page == 0 ? "" : ",") + pages[page];
    }
    return view == 23 ? marks + "," : marks;  // the notes stand at the end
}

TEST_F(ActionRules, NodeImagesFollowActionAndPreview) {
    for (const int view : test::allViews) {
        create(view);
        for (int action = 0; action < test::actionCount; ++action) {
            SCOPED_TRACE(std::to_string(view) + " " + std::to_string(action));
            node(1);
            if (!offers(action)) {
                expectRefused([&] { choose("optAction", action); });
                continue;
            }
            choose("optAction", action);
            EXPECT_EQ(image(1), images[static_cast<std::size_t>(action)][0]);
            EXPECT_EQ(form().ActionPicture, action + 1);
            const std::string caption = at("optAction(" + std::to_string(action) + ")").Caption;
            EXPECT_EQ(form().Image1.ToolTipText, "Modus: " + caption);
            check("chkPreview");
            EXPECT_EQ(image(1), images[static_cast<std::size_t>(action)][1]);
            EXPECT_EQ(form().ActionPicture, action + 7);
            EXPECT_EQ(form().Image1.ToolTipText, "Modus: " + caption + " - Vorschau (keine Aktion)");
            check("chkPreview", 2);  // grey is not set
            EXPECT_EQ(image(1), images[static_cast<std::size_t>(action)][0]);
        }
    }
}

TEST_F(ActionRules, OpenedJobShowsItsMarksAtOnceAndNoPageChangesThem) {
    for (int action = 0; action < test::actionCount; ++action) {
        saveJobOf(action);
        for (const int view : test::allViews) {
            SCOPED_TRACE(std::to_string(action) + " " + std::to_string(view));
            edit("job" + std::to_string(action), view);
            EXPECT_EQ(marksOf(form()), neutralMarks(action, view));
            walkAllPages();
            EXPECT_EQ(marksOf(form()), neutralMarks(action, view));
        }
    }
}

TEST_F(ActionRules, SynchroniseRenamesPathsAndKeepsTheFolderStructure) {
    for (const int view : {4, 15}) {
        create(view);
        for (const auto& [action, source] : {std::pair{5, 68U}, {1, 70U}}) {
            act(action);
            const bool synchronises = action == 5;
            EXPECT_EQ(form().lblSource[0].Caption, text(source));
            EXPECT_EQ(form().lblDest[0].Caption, text(source + 1));
            EXPECT_EQ(form().chkOnlyCompare.Caption, text(synchronises ? 76 : 77));
            EXPECT_EQ(title(form().Navigation.Nodes.size() - 1), text(synchronises ? 74 : 75));
            EXPECT_EQ(form().chkFStruct.State, 1) << "set by the one, unchanged by the other";
            for (const EditorControl* box : {&form().chkFStruct, &form().optExist[0], &form().optExist[4]})
                EXPECT_EQ(box->TabStop, !synchronises);
        }
        act(5);
        EXPECT_EQ(form().FrontOrder, (std::vector<const EditorControl*>{&form().fraSync, &form().fraZielverzeichnis}));
        act(3);
        EXPECT_EQ(form().chkFStruct.State, 0);
        EXPECT_FALSE(form().chkOnlyCompare.Visible);
    }
}

TEST_F(ActionRules, ComparingOnlyTakesAwayToKeepExistingFiles) {
    create();
    check("chkOnlyCompare");
    EXPECT_TRUE(form().optSyncExist[0].isSet() && form().optSyncExist[0].Enabled) << "not while copying";
    act(5);
    EXPECT_TRUE(form().optSyncExist[1].isSet());
    EXPECT_FALSE(form().optSyncExist[0].Enabled || form().chkSyncDelete.Visible);
    EXPECT_EQ(form().optSyncExist[0].Caption, text(73));
    expectRefused([&] { choose("optSyncExist", 0); });
    choose("optSyncExist", 2);
    check("chkOnlyCompare", 0);
    EXPECT_EQ(form().optSyncExist.selected(), 0);
    EXPECT_TRUE(form().optSyncExist[0].Enabled && form().chkSyncDelete.Visible);
    EXPECT_EQ(form().optSyncExist[0].Caption, text(72));
    choose("optSyncExist", 2);
    const auto before = dumpOf(form());
    act(5);  // a window reports the click on an option that is chosen already
    check("chkOnlyCompare", 0);
    EXPECT_EQ(test::differences(before, dumpOf(form())), "") << "the job has decided that before";
}

TEST_F(ActionRules, PagesShowTheFramesOfTheActionOrSayThatTheyHaveNone) {
    create();
    const std::string shown[] = {"Z1", "Z1", "12", "pZ", "uU", "SZ1"};
    const std::pair<const char*, char> letters[] = {
        {"fraZip", 'p'}, {"fraUnZip", 'u'}, {"fraExistingUnzip", 'U'}, {"fraSync", 'S'}, {"fraZielverzeichnis", 'Z'}};
    for (int action = 0; action < test::actionCount; ++action) {
        act(action);
        node(11);
        node(12);
        std::string seen;
        for (const auto& [frame, letter] : letters)
            if (at(frame).Visible) seen += letter;
        const std::string reason = "(Modus " + form().optAction[static_cast<std::size_t>(action)].Caption + " - " +
                                   "keine Optionen für diese Aktion)";
        for (const std::size_t page : {0U, 1U})
            if (form().lblNoOptionMsg[page].Caption == reason) seen += static_cast<char>('1' + page);
        EXPECT_EQ(seen, shown[action]);
    }
}

struct RefreshPageStates : test::EditorTest {};

// Positions 3 to 6 show the pages of folders, files, extensions and size in view 15.
TEST_F(RefreshPageStates, View15RunsRulesByPosition) {
    const std::map<int, std::vector<std::string>> expected{
        {9, std::vector<std::string>(12)},
        {15, {"", "", "", "weekday", "", "", "match", "dates", "attributes", "", "unzip"}},
        {23, {"", "", "", "match", "", "", "dates", "attributes", "unzip", ""}}};
    for (const auto& [view, restored] : expected) {
        create(view);
        const std::pair<std::string, bool*> flags[] = {{"weekday", &form().dxIntWeekDay.Visible},
                                                       {"match", &form().dxFileName.Visible},
                                                       {"dates", &form().dxDateFrom.Visible},
                                                       {"attributes", &form().chkAttrArchive[1].Visible},
                                                       {"unzip", &form().fraExistingUnzip.Visible}};
        for (std::size_t position = 0; position < restored.size(); ++position) {
            for (const auto& [name, flag] : flags)
                *flag = true;
            kestedit::RefreshPageStates(form(), "", view, static_cast<int>(position));
            std::string back;
            for (const auto& [name, flag] : flags)
                back += *flag ? "" : name;
            EXPECT_EQ(back, restored[position]) << view << " " << position;
        }
    }
}

TEST_F(RefreshPageStates, ASecondPassAndASecondWalkChangeNothing) {
    for (const bool disable : {false, true}) {
        folder.file("program.ini", disable ? "[EditWin]\nDisableInsteadOfHide=1\n" : "");
        for (const int view : test::allViews) {
            for (int action = 0; action < test::actionCount; ++action) {
                create(view);
                if (!form().optAction[static_cast<std::size_t>(action)].Visible) continue;
                SCOPED_TRACE(std::to_string(view) + " " + std::to_string(action));
                check("chkSubFolder");
                act(action);
                walkAllPages();
                const std::string dump = dumpOf(form());
                kestedit::RefreshPageStates(form(), "all", view, 0);
                walkAllPages();
                EXPECT_EQ(test::differences(dump, dumpOf(form())), "");
            }
        }
    }
}

}  // namespace
}  // namespace kestedit
