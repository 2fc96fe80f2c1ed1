// What the user puts into single fields: filters, spin steps, choosers, the new-folder dialog, and events refused.
#include <array>
#include <tuple>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;

struct TextFilters : test::EditorTest {
    /// Every filtered field can be reached.
    void openFilters() {
        create();
        check("chkSubFolder");
        for (const auto group : {"optFolderMatch", "optFileMatch", "optExt"})
            choose(group, 1);
        choose("optExist", 2);
    }
    [[nodiscard]] std::string flags() {
        return std::string(form().InvalidExtChars ? "ext " : "") + (form().InvalidRenamerChars ? "renamer " : "") +
               (form().InvalidFileNameChars ? "file " : "") + (form().InvalidFolderMatchChars ? "folder " : "");
    }
};
struct SpinButtons : test::EditorTest {};
struct Events : test::EditorTest {};
struct NewFolder : test::EditorTest {
    static constexpr std::array<std::string_view, 3> fields{"dxSource", "dxDest", "dxMonitorPath"};
    void openFields() {
        create();
        choose("optIntervall", 2);
        choose("optMonitorPath", 2);
        for (const auto field : fields)
            type(field, jobs.string());
    }
    /// Button 1 of the field, then a name typed and the button pressed; the dialog is cancelled when it stays open.
    void createFolder(std::string_view field, const std::string& name) {
        prompts.newFolder = [&](dlgNewFolder& dialog) {
            dialog.onTextTyped(dialog.dxTextEdit1, name);
            dialog.onCommand(dialog.cmdCreate);
            stayedOpen = dialog.isOpen();
            dialog.onCommand(dialog.cmdCancel);
            EXPECT_FALSE(dialog.isOpen());
        };
        button(field, 1);
    }
    bool stayedOpen = false;
};
using Choosers = NewFolder;

TEST_F(TextFilters, DropWhatTheFieldDoesNotTakeUnlessItIsARegularExpression) {
    const std::tuple<std::string_view, std::string, std::string, std::string_view, std::string_view> rows[] = {
        {"dxExt", "Dö_1.T?;-X, *Ü", "Dö1.TX, *Ü", "ext ", ""},
        {"dxRenamer", "Ä 2024-01_r.doc", "Ä 2024-01_rdoc", "renamer ", ""},
        {"dxFileName", "É*?é_.<>|/\\:´~^¨¦`\"", "É*?é_.", "file ", "chkRegExFile"},
        {"dxFolderMatch", "x:\\y", "xy", "folder ", "chkRegExFolder"},
    };
    for (const auto& [field, typed, kept, flag, regEx] : rows) {
        SCOPED_TRACE(typed);
        openFilters();
        type(field, kept);
        EXPECT_EQ(flags(), "");
        type(field, typed);
        EXPECT_EQ(at(field).text(), kept);
        type(field, kept);
        EXPECT_EQ(flags(), flag) << "a flag stays when the field is clean";
        if (regEx.empty()) continue;
        check(regEx, 2);
        type(field, typed);
        EXPECT_EQ(at(field).text() + flags(), kept + std::string{flag}) << "grey is not set";
        check(regEx);
        type(field, typed);
        check(regEx, 0);
        EXPECT_EQ(at(field).text() + flags(), typed) << "filtered by the next edit only";
        type(field, typed + "x");
        EXPECT_EQ(at(field).text(), kept + "x");
    }
}

TEST_F(SpinButtons, CarryBorrowAndStopAtOneMinute) {
    using Numbers = std::array<std::int64_t, 3>;  // days, hours, minutes
    const std::tuple<Numbers, std::size_t, bool, Numbers> rows[] = {
        {{0, 23, 59}, 2, true, {1, 0, 0}},  {{0, 5, 59}, 2, true, {0, 6, 0}},
        {{2, 0, 0}, 2, false, {1, 23, 59}}, {{0, 2, 0}, 2, false, {0, 1, 59}},
        {{0, 0, 1}, 2, false, {0, 0, 1}},   {{0, 0, 0}, 2, false, {0, 0, 1}},
        {{0, 0, 75}, 2, true, {0, 0, 76}},  {{1, 23, 10}, 1, true, {2, 0, 10}},
        {{3, 0, 7}, 1, false, {2, 23, 7}},  {{0, 0, 5}, 1, false, {0, 0, 5}},
        {{0, 1, 0}, 1, false, {0, 0, 1}},   {{1, 0, 0}, 0, false, {0, 0, 1}},
        {{0, 0, 3}, 0, false, {0, 0, 3}},   {{999'999'999, 0, 0}, 0, true, {999'999'999, 0, 0}},
    };
    constexpr std::array<std::array<const char*, 6>, 2> groups{
        {{"dxDays", "dxHours", "dxMinutes", "lblDays", "lblHours", "lblMinutes"},
         {"dxAge", "dxAgeHours", "dxAgeMinutes", "lblFileAgeDays", "lblFileAgeHours", "lblFileAgeMinutes"}}};
    create();
    choose("optAge", 1);
    for (const auto& group : groups) {
        for (const auto& [from, stepped, up, to] : rows) {
            SCOPED_TRACE(group[0] + testing::PrintToString(from));
            for (std::size_t unit = 0; unit < 3; ++unit)
                number(group[unit], from[unit]);
            spin(group[stepped], up);
            for (std::size_t unit = 0; unit < 3; ++unit) {
                EXPECT_EQ(at(group[unit]).number(), to[unit]);
                EXPECT_EQ(at(group[unit + 3]).Caption, text(to[unit] == 1 ? 30 + unit : 29 - unit));
            }
        }
    }
}

TEST_F(Events, RefusedWhereAUserCouldNotActAndNothingChanges) {
    create();
    expectRefused([&] { type("dxRenamer", "hidden"); });
    expectRefused([&] { number("dxFreeSpace", 5000); });  // disabled
    expectRefused([&] { choose("optSyncStart", 1); });    // in a hidden group frame
    expectRefused([&] { check("dxName"); });              // of another kind
    expectRefused([&] { check("chkPreview", 3); });
    expectRefused([&] { number("dxHours", -1); });
    expectRefused([&] { form().onItemPicked(at("dxMonWatch"), "Archiv"); });
    expectRefused([&] { button("dxSource", 2); });
    check("chkEditPaths", 0);
    expectRefused([&] { type("dxSource", "/typed"); });
    choose("optIntervall", 1);
    choose("optIntTime", 2);
    expectRefused([&] { number("dxIntMonthDay", 32); });
    expectRefused([&] { form().onTimeChosen(at("dxDateTime"), std::chrono::hours{24}); });
    expectRefused([&] { type("dxComment", "日本"); });  // not in the code page
    expectRefused([&] { type("dxName", "bad \xff"); });
    act(3);
    check("chkZipAll");  // on a page that is not shown
    EXPECT_EQ(form().chkZipAll.State, 1);
}

TEST_F(Choosers, PathGoesIntoItsField) {
    openFields();
    const std::pair<const char*, const char*> rows[] = {{"dxSource", "Quellverzeichnis auswählen:"},
                                                        {"dxDest", "Zielverzeichnis auswählen:"},
                                                        {"dxMonitorPath", "Verzeichnis für Überwachung auswählen:"}};
    for (const auto& [field, heading] : rows) {
        button(field, 0);
        EXPECT_EQ(at(field).text(), jobs.string()) << "cancelled";
        check("chkEditPaths", 0);
        prompts.choices = {"/chosen"};
        button(field, 0);
        check("chkEditPaths");
        EXPECT_EQ(at(field).text() + at(field).ToolTipText, "/chosen/chosen");
        const FolderRequest& request = prompts.folders.back();
        EXPECT_EQ(request.title + request.initialPath, heading + jobs.string());
        EXPECT_EQ(request.flags, 69U);
    }
    prompts.choices = {"/日本"};
    expectRefused([&] { button("dxSource", 0); });
    check("chkExecDo");
    button("dxExecPath", 1);
    EXPECT_TRUE(prompts.programs.empty());
    prompts.choices = {"/usr/bin/true"};
    button("dxExecPath", 0);
    EXPECT_EQ(form().dxExecPath.text(), "/usr/bin/true");
    EXPECT_EQ(prompts.programs.back().filter, "Programme (*.exe, *.com, *.bat)|*.exe;*.com;*.bat");
}

TEST_F(NewFolder, ExistingFolderIsReportedByField) {
    openFields();
    constexpr std::array messages{"Folder already exists.", "Ordner existiert schon.", "Ordner existiert schon."};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string name = "ä" + std::string{fields[i]};
        fs::create_directory(jobs / name);
        prompts.answers = {Answer::ok};
        createFolder(fields[i], name);
        EXPECT_EQ(prompts.messages.back().text, messages[i]);
        EXPECT_TRUE(stayedOpen);
        EXPECT_EQ(at(fields[i]).text(), jobs.string());
        fs::remove(jobs / name);
        createFolder(fields[i], name);
        EXPECT_TRUE(fs::is_directory(jobs / name));
        EXPECT_FALSE(stayedOpen);
        const std::string created = (jobs / name).string();
        EXPECT_EQ(at(fields[i]).text() + at(fields[i]).ToolTipText, created + created);
        type(fields[i], jobs.string());
    }
    prompts.answers = {Answer::ok};
    createFolder("dxDest", "../b");
    EXPECT_TRUE(stayedOpen);
    EXPECT_NE(prompts.messages.back().text.find("../b: "), std::string::npos) << prompts.messages.back().text;
    EXPECT_EQ(form().dxDest.text(), jobs.string());
    EXPECT_THROW(createFolder("dxDest", "日本"), EventRefused);
}

TEST_F(NewFolder, ComesInTheUsersColourAndNeedsTwoCharacters) {
    openFields();
    const std::pair<std::string, std::optional<std::int64_t>> rows[] = {
        {"16711680", 16711680}, {"5", std::nullopt}, {"12 blue", std::nullopt}, {"16777216", std::nullopt}};
    for (const auto& row : rows) {
        settings.write("Options", "BGColor", row.first);
        prompts.newFolder = [&](dlgNewFolder& dialog) {
            EXPECT_EQ(dialog.BackColour, row.second) << row.first;
            for (const auto& [name, enabled] : {std::pair{"ä", false}, {"äb", true}, {"a", false}}) {
                dialog.onTextTyped(dialog.dxTextEdit1, name);
                EXPECT_EQ(dialog.cmdCreate.Enabled, enabled) << name;
            }
            EXPECT_THROW(dialog.onCommand(dialog.cmdCreate), EventRefused);
        };
        button("dxDest", 1);
        EXPECT_EQ(form().dxDest.text() + jobNames(), jobs.string());
    }
}

}  // namespace
}  // namespace kestedit
