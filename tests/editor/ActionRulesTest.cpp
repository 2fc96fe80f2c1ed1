// What follows from the choice of the action in every view, and rules that no event alone tells apart.
#include <map>
#include <set>
#include <utility>

#include "editor/NodeImages.h"
#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/existing.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using ActionRules = test::EditorTest;
using CompressionRules = test::EditorTest;
struct RefreshPageStates : test::EditorTest {};

TEST_F(ActionRules, NodeImagesFollowActionAndPreview) {
    // Mark and picture without the preview, with it, and with a grey box, which is not set.
    const std::string pictures[] = {"2/1 3/7 2/1 ",   "4/2 5/8 4/2 ",     "6/3 7/9 6/3 ",
                                    "9/4 13/10 9/4 ", "14/5 15/11 14/5 ", "12/6 11/12 12/6 "};
    const auto picture = [this] { return image(1) + "/" + std::to_string(form().ActionPicture) + " "; };
    const std::map<int, std::set<int>> views{{4, {}}, {9, {3, 4}}, {15, {}}, {23, {3, 4, 5}}};
    for (const auto& [view, hidden] : views) {
        create(view);
        for (int action = 0; action < test::actionCount; ++action) {
            SCOPED_TRACE(std::to_string(view) + " " + std::to_string(action));
            walkAllPages();
            EXPECT_EQ(form().optIntervall[2].Visible, view != 9);
            if (hidden.contains(action)) {
                expectRefused([&] { act(action); });
                continue;
            }
            act(action);
            std::string found = picture();
            for (const int state : {1, 2}) {
                check("chkPreview", state);
                found += picture();
            }
            EXPECT_EQ(found, pictures[action]);
            const std::vector<const EditorControl*> inFront{&form().fraSync, &form().fraZielverzeichnis};
            EXPECT_TRUE(action != 5 || form().FrontOrder == inFront);
        }
    }
}

TEST_F(CompressionRules, ExistingFilesMarkOfCompressAndExtract) {
    create();
    const auto markAfter = [&](int action, std::size_t exist, std::size_t unzip) {
        act(action);
        form().optExist.select(exist);
        form().optUnZip.select(unzip);
        SetNodeImage(form(), Page::existing, "left");
        ApplyUnZipExisting(form(), static_cast<int>(unzip));
        return image(12);
    };
    EXPECT_EQ(markAfter(3, 0, 1), "") << "the other group decides";
    EXPECT_EQ(markAfter(3, 3, 0), "8");
    EXPECT_EQ(markAfter(3, 0, 0), "left") << "the item has been handled";
    EXPECT_EQ(markAfter(4, 0, 2), "8");
    EXPECT_EQ(markAfter(4, 3, 0), "");
    EXPECT_EQ(markAfter(0, 3, 2), "left");
    EXPECT_EQ(markAfter(4, 0, 2), "left") << "an item counts as handled under every action";
}

// Positions 3 to 6 show the pages of folders, files, extensions and size in view 15.
TEST_F(RefreshPageStates, View15RunsRulesByPosition) {
    const std::pair<int, std::vector<std::string>> views[] = {
        {15,
         {"", "", "", "dxIntWeekDay", "", "", "dxFileName", "dxDateFrom", "chkAttrArchive(1)", "", "fraExistingUnzip"}},
        {23, {"", "", "", "dxFileName", "", "", "dxDateFrom", "chkAttrArchive(1)", "fraExistingUnzip", ""}}};
    for (const auto& [view, restored] : views) {
        create(view);
        expectRefused([this] { node(-1); });
        for (std::size_t position = 0; position < restored.size(); ++position) {
            for (const std::string& name : restored)
                if (!name.empty()) at(name).Visible = true;
            kestedit::RefreshPageStates(form(), "", view, static_cast<int>(position));
            for (const std::string& name : restored)
                EXPECT_TRUE(name.empty() || at(name).Visible != (name == restored[position]))
                    << view << " " << position;
        }
    }
}

}  // namespace
}  // namespace kestedit
