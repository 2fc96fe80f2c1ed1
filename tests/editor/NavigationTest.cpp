// The navigation list, the pages it shows, and the order of the controls on them.
#include <algorithm>
#include <map>

#include "editor/Views.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using Navigation = test::EditorTest;
using TabOrder = test::EditorTest;

TEST_F(Navigation, SteppingShowsEveryPageOfTheViewOnceAndGoesRound) {
    const std::string first = "fraComment fraMode fraPath ";
    const std::string schedule = "fraMonitoring fraExecute ";
    const std::string selection = "fraFolders fraFiles fraExtensions fraFilesize fraDate fraAttributes ";
    const std::pair<int, std::string> views[] = {{4, first + schedule + selection + "fraCompression fraExisting "},
                                                 {9, first + schedule + selection + "fraExisting "},
                                                 {15, first + selection + "fraCompression fraExisting "},
                                                 {23, "fraPath fraMode " + selection + "fraExisting fraComment "},
                                                 {7, ""}};
    for (const auto& [view, frames] : views) {
        create(view);
        const auto startsPage = [this](const EditorControl* control) {
            return control->Kind == ControlKind::label && control->Container &&
                   control->Container->Name() == visibleFrames();
        };
        std::string forth;
        std::string back;
        for (std::size_t i = 0; i < form().Navigation.Nodes.size(); ++i) {
            forth += visibleFrames() + " ";
            const std::string& heading = (*std::ranges::find_if(form().controls(), startsPage))->Caption;
            EXPECT_TRUE(heading == title(i) || visibleFrames() == "fraPath") << heading << ": " << title(i);
            click("cmdNext");
        }
        for (std::size_t i = 0; i < form().Navigation.Nodes.size(); ++i) {
            click("cmdPrevious");
            back = visibleFrames() + " " + back;
        }
        EXPECT_EQ(forth, frames);
        EXPECT_EQ(back, frames);
        EXPECT_EQ(form().FocusedControl, frames.empty() ? &form().dxName : &form().dxTreeList1);
    }
    click("cmdNext");
    node(3);
    form().onNodeKey(40);
    choose("optAction", 2);
    EXPECT_EQ(visibleFrames(), "") << "a view that nobody knows shows nothing and still edits";
}

TEST_F(Navigation, View23PairsNameWithPaths) {
    create(23);
    EXPECT_EQ(title(0), "Auftragsname und Notizen");
    EXPECT_EQ(visibleFrames(), "fraPath");
    EXPECT_EQ(test::marksOf(form()), ",2,,,,,,,,,") << "the pages of paths and destination have no marks";
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

TEST_F(Navigation, KeysStopAtTheEndsOfTheList) {
    create();
    constexpr int up = 38;
    constexpr int down = 40;
    for (const auto& [from, key, to] : {std::tuple{0, up, 0}, {0, down, 1}, {2, up, 1}, {12, down, 12}}) {
        node(from);
        form().onNodeKey(key);
        EXPECT_EQ(form().Navigation.FocusedNode, to);
    }
    expectRefused([this] { node(13); });
    expectRefused([this] { node(-1); });
}

TEST_F(TabOrder, ZipDelCompStandsBehindZipDelDeComp) {
    create();
    int place = form().chkDestKeepZStruct.TabIndex;
    for (const auto name : {"chkZipDelDeComp", "chkZipDelDeCompBin", "chkZipDelComp", "chkZipDelCompBin",
                            "chkZipDelCompBinFolder", "dxDestZipPwd"})
        EXPECT_EQ(at(name).TabIndex, ++place) << name;
    EXPECT_EQ(form().dxTreeList1.TabIndex, 0);
    for (const EditorControl* control : form().controls())
        EXPECT_LE(control->TabIndex, form().cmdSave.TabIndex) << control->Name();
    // Program options behind their switch, which the listed order leaves a gap for.
    EXPECT_EQ(form().optExecute[0].TabIndex, form().chkExecDo.TabIndex + 1);
    EXPECT_EQ(form().chkSubFolder.TabIndex, form().dxExecMaxSec.TabIndex + 1);
}

}  // namespace
}  // namespace kestedit
