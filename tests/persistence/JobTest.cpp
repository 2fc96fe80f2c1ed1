// The way of a form into a job file and back.
#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <regex>
#include <tuple>

#include "persistence/JobFormat.h"
#include "persistence/JobStore.h"
#include "persistence/modGetValues.h"
#include "persistence/modIniHandler.h"
#include "persistence/modSaveValues.h"
#include "tests/persistence/FilledForm.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;
using test::bytesOf;

const LocalTime now{dateOf(2026, 11, 21), std::chrono::hours{14} + std::chrono::minutes{5}};

struct JobTest : testing::Test {
    void put(std::string_view bytes) const { static_cast<void>(folder.file("a.job", bytes)); }

    void save(FormModel& form, JobStore::Write mode = JobStore::Write::create) {
        jobs.write(file, SaveValues(form, dates, now), mode);
    }

    /// As the editor loads a job: the action first, the comment by a read of its own.
    void load(FormModel& form) {
        const auto job = jobs.read(file);
        ASSERT_TRUE(job);
        GetAction(form, *job);
        GetValues(form, *job, handler.ReadIniFileValue(jobSection, "Comment", "", file, textSize), dates, now.date);
    }

    /// The stored text of a key after a save; "(none)" without the key.
    std::string saved(FormModel& form, std::string_view key) {
        save(form);
        return jobs.read(file)->field(key).value_or("(none)");
    }

    test::TemporaryFolder folder;
    fs::path file = folder.path() / "a.job";
    IniStore ini;
    ComponentValues values;
    modIniHandler handler{ini, values};
    JobStore jobs{ini};
    DateFormat dates{"dd.MM.yyyy"};
};
using LoadTest = JobTest;
using SaveTest = JobTest;

// Authors of runners read the document, not the code.
TEST(JobFormat, TheDocumentListsTheSameKeysInTheSameOrder) {
    const std::string text = bytesOf(KESTEDIT_DOCS "/job-file.md");
    std::string listed;
    const std::regex row{R"(\n\| `(\w+)` \| (?:`([^`]*)`)?)"};
    for (std::sregex_iterator found{text.begin(), text.end(), row}, end; found != end; ++found)
        listed += found->str(1) + " " + found->str(2) + "\n";
    std::string expected;
    for (const JobRow& line : jobFormat())
        expected.append(line.key).append(" ").append(line.control).append("\n");
    EXPECT_EQ(listed, expected);
}

TEST_F(LoadTest, AbsentKeysLeaveWhatTheControlsAccept) {
    put("[Job]\n");
    FilledForm form;
    form.optAttrSetDest.select(1);
    load(form);
    EXPECT_EQ(form.optExist.selected(), 0);
    EXPECT_FALSE(form.optAttrSetDest.selected());
    EXPECT_EQ(form.dxMonDelay.number(), 5);
    EXPECT_EQ(form.dxHours.number(), 1);
    EXPECT_EQ(form.CompressionLevel, 3);
    EXPECT_EQ(form.dxDateTime.EditValue, Value{});
    EXPECT_EQ(form.dxDateFrom.date(), dateOf(2026, 11, 20));
    EXPECT_EQ(form.dxDate.date(), now.date);
    EXPECT_FALSE(form.DateFormatChanged);
}

TEST_F(LoadTest, ValuesOutsideTheirRangeStandForTheFirst) {
    put("[Job]\nComment=a^b" + std::string(300, 'c') +
        "\nSubFolder=7\nRunOnce=-1\nExist=5\nAction=-2\nPickRenamer=4\nIntWeekDay=0\nMonWatch=5\nEFSelect=7\n"
        "ZipGrade=9\nMonDelay=\nExecMaxSec=1e3\nFileAgeDiff=99999999999999999999\nInterval=4565\nIntervalTime=noon\n");
    FilledForm form;
    load(form);
    EXPECT_EQ(form.dxComment.text(), "a\r\nb" + std::string(252, 'c')) << "cut, and with its line break";
    EXPECT_EQ(form.chkSubFolder.State, 0);
    EXPECT_EQ(form.chkRunOnce.State, 0);
    EXPECT_EQ(form.optExist.selected(), 0);
    EXPECT_EQ(form.optAction.selected(), 0);
    for (const EditorControl* list : {&form.dxPickRenamer, &form.dxIntWeekDay, &form.dxMonWatch, &form.dxZipGrade})
        EXPECT_EQ(list->text(), "") << list->Name();
    EXPECT_EQ(form.dxPickExistSelecter.text(), "entry 7");
    EXPECT_EQ(form.CompressionLevel, 9);
    EXPECT_EQ(form.dxMonDelay.EditValue, Value{});
    EXPECT_EQ(form.dxExecMaxSec.number(), 60);
    EXPECT_EQ(form.dxAge.number(), 1);
    EXPECT_EQ(form.dxDateTime.EditValue, Value{"noon"});
}

// With Windows line ends; only the version behind the text of the filled form moves on.
TEST_F(SaveTest, AFullJobIsWrittenByteForByteAndComesBack) {
    const std::string expected =
        bytesOf(KESTEDIT_FULL_JOB) + "[Info]\r\nProgVersion=" + std::string{programVersion()} + "\r\n";
    FilledForm form;
    form.fill();
    put("");
    fs::permissions(file, fs::perms::owner_read);
    save(form, JobStore::Write::update);
    EXPECT_EQ(bytesOf(file), expected);
    EXPECT_NE(fs::status(file).permissions() & fs::perms::owner_write, fs::perms::none);

    FilledForm loaded;
    load(loaded);
    loaded.Navigation = form.Navigation;
    loaded.PageNodeIndex = form.PageNodeIndex;
    save(loaded);
    EXPECT_EQ(bytesOf(file), expected);
}

TEST_F(SaveTest, CorrectsTheFormOnTheWay) {
    FilledForm form;
    form.chkDelEFol.State = 1;
    form.dxFreeSpace.EditValue = std::int64_t{500};
    form.dxDateTime.EditValue = "1";
    EXPECT_EQ(saved(form, "DelEFol"), "0");
    EXPECT_EQ(form.chkDelEFol.State, 0);
    EXPECT_EQ(saved(form, "FreeSpaceVal"), "2000");
    EXPECT_EQ(form.dxFreeSpace.number(), 2000);
    EXPECT_EQ(saved(form, "IntervalTime"), "00:00:00");
    EXPECT_EQ(form.dxDateTime.time(), TimeOfDay{0});

    form.chkSubFolder.State = 2;  // grey is not off
    form.chkDelEFol.State = 1;
    EXPECT_EQ(saved(form, "DelEFol"), "1");
}

TEST_F(SaveTest, WhatIsEmptyOrNotChosenFollowsTheRuleOfItsRow) {
    FilledForm form;
    for (EditorControl* control : form.controls()) {
        if (control->Kind == ControlKind::option) control->State = 0;
    }
    form.dxSize.EditValue = std::monostate{};
    form.optExt[1].State = form.optSize[1].State = 1;
    const std::pair<const char*, const char*> rows[] = {{"ExtOpt", "0"},
                                                        {"FileOpt", "0"},
                                                        {"FileSize", ""},
                                                        {"AttrSetSource", "(none)"},
                                                        {"AttrSetDest", "(none)"},
                                                        {"Exist", "0"},
                                                        {"EFSelect", "-1"},
                                                        {"MonWatch", "-1"},
                                                        {"PickRenamer", "(none)"},
                                                        {"IntWeekDay", "0"},
                                                        {"FStruct", "0"},
                                                        {"DateFrom", ""},
                                                        {"IntervalDate", "21.11.2026"}};
    for (const auto& [key, value] : rows)
        EXPECT_EQ(saved(form, key), value) << key;
    form.optAction.select(5);
    EXPECT_EQ(saved(form, "FStruct"), "1");
}

TEST_F(SaveTest, DurationsCarryOnlyAboveSixtyAndTwentyFour) {
    using Numbers = std::array<std::int64_t, 3>;  // days, hours, minutes
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const std::tuple<Numbers, std::int64_t, Numbers> rows[] = {{{0, 0, 60}, 60, {0, 0, 60}},
                                                               {{0, 24, 0}, 1440, {0, 24, 0}},
                                                               {{0, 24, 61}, 1501, {1, 1, 1}},
                                                               {{1, 48, 150}, 4470, {3, 2, 30}},
                                                               {{most, most, 5}, most, {most, 7, 5}}};
    for (const auto& [typed, minutes, shown] : rows) {
        FilledForm form;
        form.dxDays.EditValue = typed[0];
        form.dxHours.EditValue = typed[1];
        form.dxMinutes.EditValue = typed[2];
        EXPECT_EQ(saved(form, "Interval"), std::to_string(minutes));
        EXPECT_EQ(saved(form, "Counter"), std::to_string(minutes));
        EXPECT_EQ((Numbers{form.dxDays.number(), form.dxHours.number(), form.dxMinutes.number()}), shown);
    }
}

TEST_F(SaveTest, TellsOfAMissedRunOnlyAfterTheRunTime) {
    FilledForm form;
    EXPECT_EQ(saved(form, "IntState"), "(none)");
    form.dxDateTime.EditValue = now.time;
    EXPECT_EQ(saved(form, "IntState"), "(none)");
    form.dxDateTime.EditValue = now.time - std::chrono::seconds{1};
    EXPECT_EQ(saved(form, "IntState"), "20.11.2026");
}

TEST_F(SaveTest, CompressionLevel) {
    FilledForm form;
    form.dxZipGrade.EditValue = form.TextCatalogue[7];
    EXPECT_EQ(saved(form, "ZipGrade"), "2");
    form.dxZipGrade.EditValue = "";
    form.CompressionLevel = 9;  // of another editor, no entry shows it
    EXPECT_EQ(saved(form, "ZipGrade"), "9");
    form.TextCatalogue.assign(catalogueSize, "");
    form.CompressionLevel = 4;
    EXPECT_EQ(saved(form, "ZipGrade"), "4") << "without texts all entries are equal";
}

TEST_F(SaveTest, EveryTextComesBackAndNoneForgesALine) {
    using namespace std::string_literals;
    const std::pair<std::string, std::string> texts[] = {
        {"a\t", "a\t"},   {"'a'", "'a'"}, {"\"\"a\"\"", "\"\"a\"\""}, {"\"", "\""},
        {" ", " "},       {"''", "''"},   {"a;b=c#", "a;b=c#"},       {"[Info]", "[Info]"},
        {"\ra\n", " a "}, {"a\0"s, "a "}, {"\"a\"\n", "\"a\" "},      {"a\r\n[Info]\r\nx=1", "a  [Info]  x=1"}};
    for (const auto& [typed, stored] : texts) {
        FilledForm form;
        FilledForm loaded;
        for (const auto name : {"dxZipPwd", "dxSource", "dxDateTime"})
            form.at(name).EditValue = typed;
        save(form);
        load(loaded);
        for (const auto name : {"dxZipPwd", "dxSource", "dxDateTime"})
            EXPECT_EQ(loaded.at(name).text(), stored) << name;
        EXPECT_EQ(handler.ReadIniFileValue(infoSection, "x", "", file, textSize), "");
    }
}

}  // namespace
}  // namespace kestedit
