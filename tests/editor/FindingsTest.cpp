// Folders without rights or answers, and findings while the user types or a look is under way.
#include <map>
#include <thread>

#include "editor/rules/paths.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using std::chrono::milliseconds;
using Finding = std::optional<PathFinding>;

/// The machine's own folders, some with rights which a test cannot give to a real one, and none at once.
struct OddFolders : LocalFileSystem {
    std::map<fs::path, FolderStatus> odd;
    mutable std::vector<milliseconds> granted;

    FolderStatus inspectFolder(const fs::path& folder, milliseconds patience) const override {
        granted.push_back(patience);
        std::this_thread::sleep_for(1ms);
        const auto found = odd.find(folder);
        return found == odd.end() ? LocalFileSystem::inspectFolder(folder, patience) : found->second;
    }
    fs::path resolve(const fs::path& path, milliseconds patience) const override {
        granted.push_back(patience);
        return LocalFileSystem::resolve(path, patience);
    }
};

struct PathRules : test::EditorTest {
    PathRules() {
        for (const char* name : {"data", "database"})
            fs::create_directory(folder.path() / name);
        folders.odd = {{path("dead"), {false, false, false, false}},
                       {path("sealed"), {true, true, true, false}},
                       {path("blind"), {true, true, false, true}}};
        create();
    }
    std::string path(const std::string& name) const { return (folder.path() / name).string(); }
    Finding check(const std::string& source, const std::string& destination) {
        form().dxSource.EditValue = path(source);
        form().dxDest.EditValue = path(destination);
        return CheckPaths(FoldersOf(form()), folders);
    }

    OddFolders folders;
};

using Findings = test::EditorTest;

TEST_F(PathRules, FoldersAreUsableAndAnswer) {
    const std::tuple<const char*, const char*, Finding> cases[] = {
        {"data", "sealed", PathFinding::destinationNotWritable}, {"blind", "data", PathFinding::sourceUnreadable},
        {"dead", "data", PathFinding::sourceNoAnswer},           {"data", "dead", PathFinding::destinationNoAnswer},
        {"dead", "gone", PathFinding::destinationMissing},  // what is known to be wrong goes first
    };
    for (const auto& [source, destination, finding] : cases)
        EXPECT_EQ(check(source, destination), finding) << source << " -> " << destination;
}

TEST_F(PathRules, SourceIsWritableWhereTheJobNeedsIt) {
    const std::tuple<Action, std::string_view, bool> cases[] = {
        {Action::copy, "", false},
        {Action::move, "", true},
        {Action::compress, "chkZipDelComp", true},
        {Action::extract, "chkZipDelComp", false},
        {Action::extract, "chkZipDelDeComp", true},
        {Action::synchronise, "chkZipDelDeComp", false},
        {Action::synchronise, "optSyncStart(1)", true},
        {Action::copy, "chkDelSourceRename", false},
    };
    for (const auto& [action, option, writesAtSource] : cases) {
        create();
        act(static_cast<int>(action));
        if (!option.empty()) at(option).State = 1;
        EXPECT_EQ(check("sealed", "data") == PathFinding::sourceNotWritable, writesAtSource)
            << form().SelectedAction << " " << option;
    }
    choose("optExist", 2);
    EXPECT_EQ(check("sealed", "data"), PathFinding::sourceNotWritable);
}

TEST_F(PathRules, AllFoldersShareTwoSeconds) {
    choose("optIntervall", 2);
    choose("optMonitorPath", 2);
    type("dxMonitorPath", path("gone"));
    EXPECT_EQ(check("data", "database"), PathFinding::monitoredMissing);
    ASSERT_EQ(folders.granted.size(), 5U);
    EXPECT_LE(folders.granted.back(), 1998ms);
    EXPECT_GE(folders.granted.back(), 0ms);
}

TEST_F(Findings, WaitUntilTheUserHasLeftTheField) {
    create();
    form().onTimer();
    EXPECT_FALSE(form().isTimerRunning());
    const auto& paths = form().lblChkPathMsg;
    const auto& schedule = form().lblChkTimeMsg;
    form().onFocused(form().dxDest);
    type("dxDest", "/g");
    EXPECT_TRUE(paths.Visible) << "the source is missing all the same";
    form().onFocused(form().dxSource);
    type("dxSource", jobs.string() + "/gone");
    form().onTimer();
    EXPECT_FALSE(paths.Visible) << "the timer fires once only";
    form().onEditingFinished(form().dxSource);
    EXPECT_EQ(paths.Caption, "Das Quellverzeichnis existiert nicht.");
    form().onFocused(form().dxHours);
    form().onNumberTyped(form().dxHours, {});
    EXPECT_FALSE(schedule.Visible) << "an emptied number is on its way to another";
    form().onEditingFinished(form().dxHours);
    EXPECT_TRUE(schedule.Visible);
    number("dxHours", 2);
    EXPECT_FALSE(schedule.Visible) << "what is mended is so at once";
    choose("optIntervall", 1);
    choose("optIntTime", 3);
    form().onFocused(form().dxDate);
    form().onDateChosen(form().dxDate, addDays(test::now.date, -1));
    EXPECT_FALSE(schedule.Visible);
    form().onEditingFinished(form().dxDate);
    EXPECT_TRUE(schedule.Visible);
}

TEST_F(Findings, OfALookThatEndsLateAreDropped) {
    create();
    std::vector<std::function<void()>> looks;
    form().lookInBackground([&](const auto& look, const auto& show) {
        looks.emplace_back([look, show] {
            look();
            show();
        });
    });
    form().onTimer();
    type("dxSource", jobs.string());
    form().onEditingFinished(form().dxSource);
    ASSERT_EQ(looks.size(), 2U);
    EXPECT_FALSE(form().lblChkPathMsg.Visible);
    looks[1]();
    looks[0]();
    EXPECT_EQ(form().lblChkPathMsg.Caption, "Für diese Aktion ist kein Zielverzeichnis angegeben.");
}

}  // namespace
}  // namespace kestedit
