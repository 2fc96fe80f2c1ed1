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

TEST_F(ActionRules, PageMarksFollowTheActionAndSomeStay) {
    struct Step {
        int action;
        std::string_view compression, destination;
    };
    // Compress and extract keep what delete left at the destination; extract marks it by its own choice.
    constexpr Step steps[] = {{0, "10", ""}, {2, "10", "10"}, {3, "8", "10"}, {5, "10", ""},   {2, "10", "10"},
                              {4, "8", ""},  {2, "10", "10"}, {1, "10", ""},  {2, "10", "10"}, {0, "10", ""}};
    for (const int view : test::allViews) {
        create(view);
        for (const Step& step : steps) {
            SCOPED_TRACE(std::to_string(view) + " " + std::to_string(step.action));
            node(1);
            if (!offers(step.action)) continue;
            choose("optAction", step.action);
            const auto last = form().Navigation.Nodes.size() - 1;
            if (view == 23) {
                EXPECT_EQ(image(8), "");
            }
            if (view == 4 || view == 15) {
                EXPECT_EQ(image(last - 1), step.compression);
            }
            if (view != 23) {
                EXPECT_EQ(image(last), step.destination);
            }
        }
    }
}

TEST_F(ActionRules, SynchroniseRenamesPathsAndKeepsTheFolderStructure) {
    for (const int view : {4, 15}) {
        create(view);
        const std::size_t destination = form().Navigation.Nodes.size() - 1;
        act(5);
        EXPECT_EQ(form().lblSource[0].Caption, text(68));
        EXPECT_EQ(form().lblDest[0].Caption, text(69));
        EXPECT_EQ(form().chkOnlyCompare.Caption, text(76));
        EXPECT_EQ(title(destination), text(74));
        EXPECT_TRUE(form().fraSync.Visible && form().chkOnlyCompare.Visible);
        EXPECT_EQ(form().FrontOrder, (std::vector<const EditorControl*>{&form().fraSync, &form().fraZielverzeichnis}));
        EXPECT_EQ(form().chkFStruct.State, 1);
        EXPECT_FALSE(form().chkFStruct.TabStop || form().optExist[0].TabStop || form().optExist[4].TabStop);
        act(1);
        EXPECT_EQ(form().lblSource[0].Caption, text(70));
        EXPECT_EQ(form().lblDest[0].Caption, text(71));
        EXPECT_EQ(form().chkOnlyCompare.Caption, text(77));
        EXPECT_EQ(title(destination), text(75));
        EXPECT_FALSE(form().fraSync.Visible);
        EXPECT_EQ(form().chkFStruct.State, 1) << "unchanged";
        EXPECT_TRUE(form().chkFStruct.TabStop && form().optExist[0].TabStop && form().optExist[4].TabStop);
    }
    for (const int compressing : {3, 4}) {
        act(5);
        act(compressing);
        EXPECT_EQ(form().chkFStruct.State, 0);
        EXPECT_FALSE(form().chkOnlyCompare.Visible);
        act(5);
        EXPECT_EQ(form().chkFStruct.State, 1);
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
}

// A window reports the click on an option that is chosen already; it must not decide anew what the job has decided.
TEST_F(ActionRules, ChoosingTheSameAgainChangesNothing) {
    create();
    act(5);
    choose("optSyncExist", 2);
    const auto before = dumpOf(form());
    act(5);
    check("chkOnlyCompare", 0);
    EXPECT_EQ(test::differences(before, dumpOf(form())), "");
    EXPECT_EQ(form().optSyncExist.selected(), 2);
}

// Of these no page's own rule is needed: view 9 has none.
TEST_F(ActionRules, ChoosingAnActionTakesAwayWhatDoesNotApply) {
    for (const int view : {4, 9}) {
        create(view);
        choose("optIntervall", 1);
        for (const int action : {2, 0, 2, 5, 1}) {
            SCOPED_TRACE(std::to_string(view) + " " + std::to_string(action));
            act(action);
            const bool deletes = action == 2;
            for (const auto name : {"chkDelEFol", "chkDelType", "lblDeleteFiles"})
                EXPECT_EQ(at(name).Visible, deletes) << name;
            for (const auto name :
                 {"dxDest", "lblDest(0)", "optAttrSetSource(0)", "optAttrSetDest(1)", "lblDestAttrib", "optExist(0)"})
                EXPECT_EQ(at(name).Visible, !(deletes || (action == 5 && name == std::string{"optExist(0)"}))) << name;
        }
    }
    create();
    choose("optIntervall", 2);
    act(2);
    EXPECT_FALSE(form().optMonitorPath[1].Visible) << "deleting has no destination to watch";
    act(3);
    EXPECT_TRUE(form().optMonitorPath[1].Visible && form().dxDest.Visible && form().optAttrSetSource[0].Visible);
    EXPECT_FALSE(form().optAttrSetDest[0].Visible);
}

TEST_F(ActionRules, PagesShowTheFramesOfTheAction) {
    create();
    const std::string frames[] = {"Z", "Z", "", "pZ", "uU", "SZ"};
    for (int action = 0; action < test::actionCount; ++action) {
        SCOPED_TRACE(action);
        act(action);
        node(11);
        node(12);
        std::string seen;
        for (const auto& [frame, letter] : {std::pair{"fraZip", 'p'},
                                            {"fraUnZip", 'u'},
                                            {"fraExistingUnzip", 'U'},
                                            {"fraSync", 'S'},
                                            {"fraZielverzeichnis", 'Z'}}) {
            if (at(frame).Visible) seen += letter;
        }
        EXPECT_EQ(seen, frames[action]);
        const std::string reason = "(Modus " + form().optAction[static_cast<std::size_t>(action)].Caption + " - " +
                                   "keine Optionen für diese Aktion)";
        EXPECT_EQ(form().lblNoOptionMsg[0].Caption == reason, action != 3 && action != 4);
        EXPECT_EQ(form().lblNoOptionMsg[1].Caption == reason, action == 2);
    }
}

struct RefreshPageStates : test::EditorTest {
    /// Runs the rules of one position after it has spoiled what each of them sets, and tells what came back.
    [[nodiscard]] std::string restoredBy(int view, int position) {
        frmEdit& on = form();
        const std::vector<std::pair<std::string, std::string*>> captions{{"name", &on.dxName.ToolTipText},
                                                                         {"source", &on.dxSource.ToolTipText},
                                                                         {"interval", &on.lblDays.Caption},
                                                                         {"file caption", &on.lblFileName.Caption},
                                                                         {"age", &on.lblFileAgeDays.Caption}};
        const std::vector<std::pair<std::string, bool*>> flags{
            {"weekday", &on.dxIntWeekDay.Visible}, {"file match", &on.dxFileName.Visible},
            {"dates", &on.dxDateFrom.Visible},     {"attributes", &on.chkAttrArchive[1].Visible},
            {"zip", &on.fraZip.Visible},           {"unzip exists", &on.fraExistingUnzip.Visible}};
        for (const auto& [name, caption] : captions)
            *caption = "spoiled";
        for (const auto& [name, flag] : flags)
            *flag = true;
        on.dxZipGrade.Items.clear();
        kestedit::RefreshPageStates(on, "", view, position);
        std::string restored;
        for (const auto& [name, caption] : captions)
            restored += *caption == "spoiled" ? "" : name + ", ";
        for (const auto& [name, flag] : flags)
            restored += *flag ? "" : name + ", ";
        return restored + (on.dxZipGrade.Items.empty() ? "" : "levels, ");
    }
};

TEST_F(RefreshPageStates, View4RunsTheRulesOfThePage) {
    create();
    const std::string expected[] = {"name, ",
                                    "",
                                    "source, ",
                                    "interval, weekday, ",
                                    "",
                                    "file caption, ",
                                    "file match, ",
                                    "",
                                    "",
                                    "age, dates, ",
                                    "attributes, ",
                                    "zip, levels, ",
                                    "unzip exists, ",
                                    ""};
    for (int position = 0; position < 14; ++position)
        EXPECT_EQ(restoredBy(4, position), expected[position]) << position;
}

// Positions 3 to 6 show the pages of folders, files, extensions and size in this view.
TEST_F(RefreshPageStates, View15RunsRulesByPosition) {
    create(15);
    const std::string expected[] = {"name, zip, ",
                                    "",
                                    "source, ",
                                    "interval, weekday, ",
                                    "",
                                    "file caption, ",
                                    "file match, ",
                                    "age, dates, ",
                                    "attributes, ",
                                    "zip, levels, ",
                                    "unzip exists, ",
                                    ""};
    for (int position = 0; position < 12; ++position)
        EXPECT_EQ(restoredBy(15, position), expected[position]) << position;
}

TEST_F(RefreshPageStates, View9RunsNothingAndView23ItsOwnPages) {
    create(9);
    for (int position = 0; position < 12; ++position)
        EXPECT_EQ(restoredBy(9, position), "") << position;
    create(23);
    const std::string expected[] = {
        "name, source, ", "", "file caption, ", "file match, ", "", "", "age, dates, ", "attributes, ",
        "unzip exists, ", ""};
    for (int position = 0; position < 10; ++position)
        EXPECT_EQ(restoredBy(23, position), expected[position]) << position;
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
