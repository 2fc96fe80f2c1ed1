// What the user puts into single fields: filters, spin steps, choosers, the new-folder dialog, and events refused.
#include <array>
#include <set>
#include <utility>

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
struct Choosers : test::EditorTest {};
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

TEST_F(TextFilters, DropWhatTheFieldDoesNotTake) {
    struct Row {
        std::string_view field, typed, kept, flag;
    };
    constexpr Row rows[] = {
        {"dxExt", "Doc_1.TXT", "Doc1.TXT", "ext "},
        {"dxExt", "*.tx?;-", "*.tx", "ext "},
        {"dxExt", "ÄÖÜäöü", "ÄÖÜäöü", ""},
        {"dxRenamer", "report 2024-01.doc", "report 2024-01doc", "renamer "},
        {"dxRenamer", "Ä_ö -", "Ä_ö -", ""},
        {"dxFileName", "É*?é_.", "É*?é_.", ""},
        {"dxFileName", "<>|/\\:´~^¨¦`\"", "", "file "},
        {"dxFolderMatch", "x:\\y", "xy", "folder "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed);
        openFilters();
        type(row.field, row.typed);
        EXPECT_EQ(at(row.field).text(), row.kept);
        EXPECT_EQ(flags(), row.flag);
        type(row.field, row.kept);
        EXPECT_EQ(flags(), row.flag) << "a flag stays when the field is clean";
    }
}

TEST_F(TextFilters, RegularExpressionsAreFreeAndForgetWhatWasDropped) {
    openFilters();
    for (const auto& [field, box] : {std::pair{"dxFileName", "chkRegExFile"}, {"dxFolderMatch", "chkRegExFolder"}}) {
        type(field, "a|b");
        check(box, 2);
        EXPECT_NE(flags(), "") << "grey is not set";
        check(box);
        EXPECT_EQ(flags(), "");
        type(field, "^(a|b)");
        check(box, 0);
        EXPECT_EQ(at(field).text() + flags(), "^(a|b)") << "filtered by the next edit only";
        type(field, "^(a|b)x");
        EXPECT_EQ(at(field).text(), "(ab)x");
        type(field, "");
        check(box);
    }
}

TEST_F(SpinButtons, CarryBorrowAndStopAtOneMinute) {
    struct Row {
        std::array<std::int64_t, 3> from;
        int unit;  // 0 days, 1 hours, 2 minutes
        bool up;
        std::array<std::int64_t, 3> to;
    };
    constexpr Row rows[] = {
        {{0, 23, 59}, 2, true, {1, 0, 0}},
        {{0, 5, 59}, 2, true, {0, 6, 0}},
        {{2, 0, 0}, 2, false, {1, 23, 59}},
        {{0, 2, 0}, 2, false, {0, 1, 59}},
        {{0, 0, 1}, 2, false, {0, 0, 1}},
        {{0, 0, 0}, 2, false, {0, 0, 1}},
        {{0, 0, 75}, 2, true, {0, 0, 76}},
        {{1, 23, 10}, 1, true, {2, 0, 10}},
        {{3, 0, 7}, 1, false, {2, 23, 7}},
        {{0, 0, 5}, 1, false, {0, 0, 5}},
        {{0, 1, 0}, 1, false, {0, 0, 1}},
        {{1, 0, 0}, 0, false, {0, 0, 1}},
        {{0, 0, 3}, 0, false, {0, 0, 3}},
        {{4, 5, 6}, 0, true, {5, 5, 6}},
        {{999'999'999, 0, 0}, 0, true, {999'999'999, 0, 0}},
    };
    constexpr std::array<std::array<const char*, 6>, 2> groups{
        {{"dxDays", "dxHours", "dxMinutes", "lblDays", "lblHours", "lblMinutes"},
         {"dxAge", "dxAgeHours", "dxAgeMinutes", "lblFileAgeDays", "lblFileAgeHours", "lblFileAgeMinutes"}}};
    constexpr std::array singular{"Tag", "Stunde", "Minute"};
    constexpr std::array plural{"Tage", "Stunden", "Minuten"};
    create();
    choose("optAge", 1);
    for (const auto& group : groups) {
        for (const Row& row : rows) {
            SCOPED_TRACE(group[0] + std::to_string(&row - rows));
            for (std::size_t unit = 0; unit < 3; ++unit)
                number(group[unit], row.from[unit]);
            spin(group[static_cast<std::size_t>(row.unit)], row.up);
            for (std::size_t unit = 0; unit < 3; ++unit) {
                EXPECT_EQ(at(group[unit]).number(), row.to[unit]);
                EXPECT_EQ(at(group[unit + 3]).Caption, row.to[unit] == 1 ? singular[unit] : plural[unit]);
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
    act(3);
    check("chkZipAll");  // on a page that is not shown
    EXPECT_EQ(form().chkZipAll.State, 1);
}

TEST_F(Events, TextsThatTheJobFileCannotHoldAreRefusedOrChanged) {
    create();
    type("dxName", "Größe 5 €");
    for (const auto field : {"dxName", "dxComment", "dxSource"}) {
        expectRefused([&] { type(field, "日本"); });
        expectRefused([&] { type(field, "bad \xff"); });
    }
    EXPECT_EQ(form().dxName.text(), "Größe 5 €");
    using namespace std::string_literals;
    for (const auto& [field, kept] : {std::pair{"dxName", "a b c d e"}, {"dxComment", "a\r\nb\r\nc\r\nd e"}}) {
        type(field, "a\r\nb\nc\rd\0e"s);
        EXPECT_EQ(at(field).text(), kept) << "line breaks stay in notes only";
    }
}

TEST_F(Choosers, PathGoesIntoItsField) {
    create();
    choose("optIntervall", 2);
    choose("optMonitorPath", 2);
    const std::pair<std::string, std::string> rows[] = {{"dxSource", "Quellverzeichnis auswählen:"},
                                                        {"dxDest", "Zielverzeichnis auswählen:"},
                                                        {"dxMonitorPath", "Verzeichnis für Überwachung auswählen:"}};
    for (const auto& [field, heading] : rows) {
        type(field, "/before");
        button(field, 0);
        EXPECT_EQ(at(field).text(), "/before") << "cancelled";
        check("chkEditPaths", 0);
        prompts.choices = {"/chosen"};
        button(field, 0);
        check("chkEditPaths");
        EXPECT_EQ(at(field).text(), "/chosen");
        EXPECT_EQ(at(field).ToolTipText, "/chosen");
        EXPECT_EQ(prompts.folders.back().title, heading);
        EXPECT_EQ(prompts.folders.back().initialPath, "/before");
        EXPECT_EQ(prompts.folders.back().flags, 69U);
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
        EXPECT_EQ(at(fields[i]).text(), (jobs / name).string());
        EXPECT_EQ(at(fields[i]).ToolTipText, (jobs / name).string());
        type(fields[i], jobs.string());
    }
    prompts.answers = {Answer::ok};
    createFolder("dxDest", "a/b");
    EXPECT_TRUE(stayedOpen);
    EXPECT_NE(prompts.messages.back().text.find("a/b: "), std::string::npos) << prompts.messages.back().text;
    EXPECT_EQ(form().dxDest.text(), jobs.string());
    EXPECT_THROW(createFolder("dxDest", "日本"), EventRefused);
}

TEST_F(NewFolder, ButtonNeedsTwoCharacters) {
    openFields();
    prompts.newFolder = [](dlgNewFolder& dialog) {
        for (const auto& [name, enabled] : {std::pair{"ä", false}, {"äb", true}, {"a", false}}) {
            dialog.onTextTyped(dialog.dxTextEdit1, name);
            EXPECT_EQ(dialog.cmdCreate.Enabled, enabled) << name;
        }
        EXPECT_THROW(dialog.onCommand(dialog.cmdCreate), EventRefused);
        dialog.onCloseBox();
    };
    button("dxDest", 1);
    EXPECT_EQ(form().dxDest.text() + jobNames(), jobs.string());
}

TEST_F(NewFolder, ColourComesFromTheUsersSettings) {
    openFields();
    const std::pair<std::string, std::optional<std::int64_t>> rows[] = {
        {"16711680", 16711680}, {"5", std::nullopt}, {"12 blue", std::nullopt}, {"16777216", std::nullopt}};
    for (const auto& [stored, colour] : rows) {
        settings.write("Options", "BGColor", stored);
        prompts.newFolder = [&](dlgNewFolder& dialog) { EXPECT_EQ(dialog.BackColour, colour) << stored; };
        button("dxMonitorPath", 1);
    }
}

}  // namespace
}  // namespace kestedit
