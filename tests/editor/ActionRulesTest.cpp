// The choice of the action and what follows from it, compression and extraction; the rules of a page by its position.
#include <array>
#include <map>
#include <set>
#include <utility>

#include "editor/NodeImages.h"
#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/compression.h"
#include "editor/rules/existing.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using ActionRules = test::EditorTest;
using CompressionRules = test::EditorTest;
struct RefreshPageStates : test::EditorTest {};

TEST_F(ActionRules, NodeImagesFollowActionAndPreview) {
    const std::array<std::array<std::string_view, 2>, test::actionCount> images{
        {{"2", "3"}, {"4", "5"}, {"6", "7"}, {"9", "13"}, {"14", "15"}, {"12", "11"}}};
    const std::map<int, std::set<int>> views{{4, {}}, {9, {3, 4}}, {15, {}}, {23, {3, 4, 5}}};
    for (const auto& [view, hidden] : views) {
        create(view);
        for (int action = 0; action < test::actionCount; ++action) {
            SCOPED_TRACE(std::to_string(view) + " " + std::to_string(action));
            const auto& [plain, preview] = images.at(static_cast<std::size_t>(action));
            const EditorControl& option = at("optAction(" + std::to_string(action) + ")");
            walkAllPages();
            EXPECT_EQ(form().optIntervall[2].Visible, view != 9);
            if (hidden.contains(action)) {
                expectRefused([&] { act(action); });
                continue;
            }
            act(action);
            EXPECT_EQ(image(1), plain);
            EXPECT_EQ(form().ActionPicture, action + 1);
            EXPECT_EQ(form().Image1.ToolTipText, "Modus: " + option.Caption);
            check("chkPreview");
            EXPECT_EQ(image(1), preview);
            EXPECT_EQ(form().ActionPicture, action + 7);
            EXPECT_EQ(form().Image1.ToolTipText, "Modus: " + option.Caption + " - Vorschau (keine Aktion)");
            check("chkPreview", 2);  // grey is not set
            EXPECT_EQ(image(1), plain);
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
        EXPECT_EQ(form().lblNoOptionMsg[0].Caption,
                  "(Modus Verzeichnisse synchronisieren - keine Optionen für diese Aktion)");
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
    EXPECT_EQ(form().optSyncExist[0].Caption, text(73));
    expectRefused([&] { choose("optSyncExist", 0); });
    choose("optSyncExist", 2);
    check("chkOnlyCompare", 0);
    EXPECT_EQ(form().optSyncExist.selected(), 0);
    EXPECT_EQ(form().optSyncExist[0].Caption, text(72));
    choose("optSyncExist", 2);
    act(5);  // a window reports the click on an option that is chosen already
    check("chkOnlyCompare", 0);
    EXPECT_EQ(form().optSyncExist.selected(), 2) << "the job has decided that before";
}

TEST_F(CompressionRules, OnlyTheSwitchOfExtractionClearsItsCompanion) {
    create();
    for (const auto& [action, box, companion] :
         {std::tuple{3, "chkZipDelComp", "chkZipDelCompBin"}, std::tuple{4, "chkZipDelDeComp", "chkZipDelDeCompBin"}}) {
        act(action);
        check(box);
        check(companion);
        check(box, 2);
        EXPECT_EQ(at(box).State, action == 3 ? 0 : 2) << "grey becomes clear";
        EXPECT_EQ(at(companion).State, action == 3 ? 1 : 0);
    }
}

TEST_F(CompressionRules, ExistingFilesMarkOfCompressAndExtract) {
    create();
    const auto markAfter = [&](int action, std::size_t exist, std::size_t unzip, int index) {
        act(action);
        form().optExist.select(exist);
        form().optUnZip.select(unzip);
        SetNodeImage(form(), Page::existing, "left");
        ApplyUnZipExisting(form(), index);
        return image(12);
    };
    EXPECT_EQ(markAfter(3, 0, 1, 1), "") << "the other group decides";
    EXPECT_EQ(markAfter(3, 3, 0, 0), "8");
    EXPECT_EQ(markAfter(3, 0, 0, 0), "left") << "the item has been handled";
    EXPECT_EQ(markAfter(4, 0, 2, 2), "8");
    EXPECT_EQ(markAfter(4, 3, 0, 0), "");
    EXPECT_EQ(markAfter(0, 3, 2, 2), "left");
    EXPECT_EQ(markAfter(4, 0, 2, 2), "left") << "an item counts as handled under every action";
}

// Positions 3 to 6 show the pages of folders, files, extensions and size in view 15.
TEST_F(RefreshPageStates, View15RunsRulesByPosition) {
    const std::pair<int, std::vector<std::string>> views[] = {
        {15,
         {"", "", "", "dxIntWeekDay", "", "", "dxFileName", "dxDateFrom", "chkAttrArchive(1)", "", "fraExistingUnzip"}},
        {23, {"", "", "", "dxFileName", "", "", "dxDateFrom", "chkAttrArchive(1)", "fraExistingUnzip", ""}}};
    for (const auto& [view, restored] : views) {
        create(view);
        for (std::size_t position = 0; position < restored.size(); ++position) {
            for (const std::string& name : restored)
                if (!name.empty()) at(name).Visible = true;
            kestedit::RefreshPageStates(form(), "", view, static_cast<int>(position));
            std::string back;
            for (const std::string& name : restored)
                if (!name.empty() && !at(name).Visible) back += name;
            EXPECT_EQ(back, restored[position]) << view << " " << position;
        }
    }
}

}  // namespace
}  // namespace kestedit
