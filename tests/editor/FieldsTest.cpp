// What the user puts into single fields: filters, spin steps, choosers, the new-folder dialog, and events refused.
#include <array>
#include <tuple>

#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;

using TextFilters = test::EditorTest;
using SpinButtons = test::EditorTest;
using Events = test::EditorTest;
struct NewFolder : test::EditorTest {
    static constexpr std::array fields{"dxSource", "dxDest", "dxMonitorPath"};
    void openFields() {
        create();
        choose("optIntervall", 2);
        choose("optMonitorPath", 2);
        for (const auto field : fields)
            type(field, jobs.string());
    }
    /// Button 1 of the field, then a name typed and the button pressed. Whether that closed the dialog.
    bool createFolder(std::string_view field, const std::string& name) {
        bool closed = false;
        prompts.newFolder = [&](dlgNewFolder& dialog) {
            dialog.onTextTyped(dialog.dxTextEdit1, name);
            dialog.onCommand(dialog.cmdCreate);
            closed = !dialog.isOpen();
        };
        button(field, 1);
        return closed;
    }
};
using Choosers = NewFolder;

TEST_F(TextFilters, DropWhatTheFieldDoesNotTakeUnlessItIsARegularExpression) {
    const std::tuple<std::string_view, std::string, std::string, bool FormModel::*, std::string_view> rows[] = {
        {"dxExt", "Dö_1.T?;-X, *Ü", "Dö1.TX, *Ü", &FormModel::InvalidExtChars, ""},
        {"dxRenamer", "Ä 2024-01_r.doc", "Ä 2024-01_rdoc", &FormModel::InvalidRenamerChars, ""},
        {"dxFileName", "É*?é_.<>|/\\:´~^¨¦`\"", "É*?é_.", &FormModel::InvalidFileNameChars, "chkRegExFile"},
        {"dxFolderMatch", "x:\\y", "xy", &FormModel::InvalidFolderMatchChars, "chkRegExFolder"},
    };
    for (const auto& [field, typed, kept, flag, regEx] : rows) {
        SCOPED_TRACE(typed);
        create();
        check("chkSubFolder");
        for (const auto group : {"optFolderMatch", "optFileMatch", "optExt"})
            choose(group, 1);
        choose("optExist", 2);
        type(field, kept);
        EXPECT_FALSE(form().*flag);
        type(field, typed);
        EXPECT_EQ(at(field).text(), kept);
        type(field, kept);
        EXPECT_TRUE(form().*flag) << "stays when the field is clean";
        if (regEx.empty()) continue;
        for (const int state : {2, 1}) {  // grey is not set
            check(regEx, state);
            type(field, typed);
            EXPECT_EQ(at(field).text(), state == 1 ? typed : kept);
        }
        check(regEx, 0);
        EXPECT_EQ(at(field).text(), typed) << "filtered by the next edit only";
        type(field, typed + "x");
        EXPECT_EQ(at(field).text(), kept + "x");
    }
}

TEST_F(SpinButtons, CarryBorrowAndStopAtOneMinute) {
    using Numbers = std::array<std::int64_t, 3>;  // days, hours, minutes
    const std::tuple<Numbers, std::size_t, bool, Numbers> rows[] = {
        {{0, 23, 59}, 2, true, {1, 0, 0}}, {{0, 5, 59}, 2, true, {0, 6, 0}},   {{2, 0, 0}, 2, false, {1, 23, 59}},
        {{0, 2, 0}, 2, false, {0, 1, 59}}, {{0, 0, 1}, 2, false, {0, 0, 1}},   {{0, 0, 0}, 2, false, {0, 0, 1}},
        {{0, 0, 75}, 2, true, {0, 0, 76}}, {{1, 23, 10}, 1, true, {2, 0, 10}}, {{3, 0, 7}, 1, false, {2, 23, 7}},
        {{0, 0, 5}, 1, false, {0, 0, 5}},  {{0, 1, 0}, 1, false, {0, 0, 1}},   {{1, 0, 0}, 0, false, {0, 0, 1}},
        {{0, 0, 3}, 0, false, {0, 0, 3}},
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
    check("chkEditPaths", 0);
    choose("optIntervall", 1);
    choose("optIntTime", 2);
    const std::pair<const char*, std::function<void()>> events[] = {
        {"hidden", [this] { type("dxRenamer", "x"); }},
        {"disabled", [this] { number("dxFreeSpace", 5000); }},
        {"in a hidden frame", [this] { choose("optSyncStart", 1); }},
        {"of another kind", [this] { check("dxName"); }},
        {"no state of a box", [this] { check("chkPreview", 3); }},
        {"no day of a month", [this] { number("dxIntMonthDay", 32); }},
        {"no entry of the list", [this] { form().onItemPicked(at("dxZipGrade"), "x"); }},
        {"no time of a day", [this] { form().onTimeChosen(at("dxDateTime"), std::chrono::hours{24}); }},
        {"no button of the field", [this] { button("dxSource", 2); }},
        {"the button of a hidden field", [this] { button("dxMonitorPath", 0); }},
        {"filled by its buttons only", [this] { type("dxSource", "/typed"); }},
        {"not UTF-8", [this] { type("dxName", "bad \xff"); }},
    };
    for (const auto& [reason, event] : events) {
        SCOPED_TRACE(reason);
        expectRefused(event);
    }
    act(3);
    check("chkZipAll");  // on a page that is not shown
    EXPECT_EQ(form().chkZipAll.State, 1);
}

TEST_F(Choosers, PathGoesIntoItsField) {
    openFields();
    check("chkEditPaths", 0);
    for (const auto field : fields) {
        button(field, 0);
        EXPECT_EQ(at(field).text(), jobs.string()) << "cancelled";
        prompts.choices = {"/chosen"};
        button(field, 0);
        EXPECT_EQ(at(field).text() + at(field).ToolTipText, "/chosen/chosen");
    }
    EXPECT_EQ(prompts.lastChooser, "Verzeichnis für Überwachung auswählen:");
    check("chkExecDo");
    prompts.choices = {"/usr/bin/true"};
    button("dxExecPath", 1);
    EXPECT_EQ(form().dxExecPath.text(), "") << "it has one button";
    button("dxExecPath", 0);
    EXPECT_EQ(form().dxExecPath.text(), "/usr/bin/true");
    EXPECT_EQ(prompts.lastChooser, "Alle Dateien|*|Programme (*.exe, *.com, *.bat)|*.exe;*.com;*.bat");
}

TEST_F(NewFolder, ExistingFolderIsReportedByField) {
    openFields();
    constexpr std::array messages{"Folder already exists.", "Ordner existiert schon.", "Ordner existiert schon."};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string name = "ä" + std::to_string(i);
        fs::create_directory(jobs / name);
        prompts.answers = {Answer::ok};
        EXPECT_FALSE(createFolder(fields[i], name));
        EXPECT_EQ(prompts.messages.back().text, messages[i]);
        EXPECT_EQ(at(fields[i]).text(), jobs.string());
        fs::remove(jobs / name);
        EXPECT_TRUE(createFolder(fields[i], name));
        EXPECT_TRUE(fs::is_directory(jobs / name));
        const std::string created = (jobs / name).string();
        EXPECT_EQ(at(fields[i]).text() + at(fields[i]).ToolTipText, created + created);
    }
    prompts.answers = {Answer::ok};
    EXPECT_FALSE(createFolder("dxDest", "../b"));
    EXPECT_NE(prompts.messages.back().text.find("../b: "), std::string::npos) << prompts.messages.back().text;
    expectRefused([this] { createFolder("dxDest", "ä"); });  // a name has two characters
}

TEST_F(Events, AClosedWindowTakesNone) {
    const std::function<void()> events[] = {
        [this] { type("dxName", "x"); },
        [this] { form().onEditingFinished(at("dxSource")); },
        [this] { check("chkSubFolder"); },
        [this] { choose("optAction", 1); },
        [this] { pick("dxZipGrade", 1); },
        [this] { form().onDateChosen(at("dxDate"), test::now.date); },
        [this] { form().onTimeChosen(at("dxDateTime"), test::now.time); },
        [this] { number("dxDays", 3); },
        [this] { spin("dxHours", true); },
        [this] { button("dxSource", 0); },
        [this] { click("cmdCancel"); },
        [this] { click("cmdSave"); },
        [this] { node(3); },
        [this] { form().onNodeKey(40); },
        [this] { form().onMousePressed(at("dxName"), 2); },
        [this] { form().onFocused(at("dxSource")); },
        [this] { form().onTimer(); },
        [this] { form().onCloseBox(); },
    };
    for (const std::string way : {"cmdSave", "cmdCancel", "close box"}) {
        SCOPED_TRACE(way);
        values.Cancelled = false;
        create();
        type("dxName", way);
        way == "close box" ? form().onCloseBox() : click(way);
        for (const auto& event : events)
            expectRefused(event);
        EXPECT_EQ(values.Cancelled, way == "cmdCancel");
        EXPECT_EQ(form().FocusedControl, &at("dxName"));
        EXPECT_TRUE(form().isTimerRunning());
    }
    EXPECT_EQ(jobNames(), "cmdSave.job ");
}

TEST_F(NewFolder, AClosedDialogTakesNoEvent) {
    openFields();
    prompts.newFolder = [](dlgNewFolder& dialog) {
        dialog.onTextTyped(dialog.dxTextEdit1, "kept");
        dialog.onCommand(dialog.cmdCancel);
        EXPECT_THROW(dialog.onTextTyped(dialog.dxTextEdit1, "other"), EventRefused);
        EXPECT_THROW(dialog.onCommand(dialog.cmdCreate), EventRefused);
        EXPECT_THROW(dialog.onCloseBox(), EventRefused);
        EXPECT_EQ(dialog.dxTextEdit1.text(), "kept");
    };
    button("dxSource", 1);
    EXPECT_EQ(test::namesIn(jobs), "");
}

}  // namespace
}  // namespace kestedit
