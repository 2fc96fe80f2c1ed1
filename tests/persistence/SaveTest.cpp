#include <array>
#include <limits>
#include <regex>
#include <tuple>

#include "persistence/modSaveValues.h"
#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;
using SaveTest = JobTest;

// Authors of runners read the document, not the code.
TEST(JobFormat, TheDocumentListsTheSameKeysInTheSameOrder) {
    const std::string text = bytesOf(fs::path(__FILE__).parent_path() / "../../docs/job-file.md");
    std::string listed;
    const std::regex row{R"(\n\| `(\w+)` \| (?:`([^`]*)`)?)"};
    for (std::sregex_iterator found{text.begin(), text.end(), row}, end; found != end; ++found)
        listed += found->str(1) + " " + found->str(2) + "\n";
    std::string expected;
    for (const JobRow& line : jobFormat())
        expected.append(line.key).append(" ").append(line.control).append("\n");
    EXPECT_EQ(listed, expected);
}

// With Windows line ends; only the version behind the text of the filled form moves on.
TEST_F(SaveTest, AFullJobIsWrittenByteForByteAndComesBack) {
    const std::string expected = bytesOf(fs::path(__FILE__).parent_path() / "full.job") +
                                 "[Info]\r\nProgVersion=" + std::string{programVersion()} + "\r\n";
    FilledForm form;
    form.fill();
    put("");
    fs::permissions(file, fs::perms::owner_read);
    save(form);
    EXPECT_EQ(bytesOf(file), expected);
    EXPECT_NE(fs::status(file).permissions() & fs::perms::owner_write, fs::perms::none);

    FilledForm loaded;
    load(loaded);
    loaded.Navigation = form.Navigation;
    loaded.PageNodeIndex = form.PageNodeIndex;
    save(loaded, JobStore::Write::create);
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
    for (const auto& [key, value] : {std::pair{"ExtOpt", "0"},
                                     {"FileOpt", "0"},
                                     {"FileSize", ""},
                                     {"AttrSetSource", "(none)"},
                                     {"AttrSetDest", "(none)"},
                                     {"Exist", "0"},
                                     {"PickRenamer", "(none)"},
                                     {"EFSelect", "-1"},
                                     {"MonWatch", "-1"},
                                     {"IntWeekDay", "0"},
                                     {"FStruct", "0"},
                                     {"DateFrom", ""},
                                     {"IntervalDate", "21.11.2026"}}) {
        EXPECT_EQ(saved(form, key), value) << key;
    }
    SetPresentDates(form, now);
    save(form, JobStore::Write::create);
    const std::string before = bytesOf(file);
    FilledForm loaded;
    load(loaded);
    save(loaded, JobStore::Write::create);
    EXPECT_EQ(bytesOf(file), before) << "and comes back";
    form.optAction.select(5);
    EXPECT_EQ(saved(form, "FStruct"), "1");
}

TEST_F(SaveTest, DurationsCarryOnlyAboveSixtyAndTwentyFour) {
    using Row = std::tuple<std::int64_t, std::int64_t, std::int64_t, std::string, std::string>;
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    for (const auto& [d, h, m, minutes, shown] :
         {Row{0, 0, 60, "60", "0 0 60"}, Row{0, 24, 0, "1440", "0 24 0"}, Row{0, 24, 61, "1501", "1 1 1"},
          Row{1, 48, 150, "4470", "3 2 30"}, Row{most, most, 5, std::to_string(most), std::to_string(most) + " 7 5"}}) {
        FilledForm form;
        form.dxDays.EditValue = d;
        form.dxHours.EditValue = h;
        form.dxMinutes.EditValue = m;
        EXPECT_EQ(saved(form, "Interval"), minutes);
        EXPECT_EQ(saved(form, "Counter"), minutes);
        EXPECT_EQ(std::to_string(form.dxDays.number()) + " " + std::to_string(form.dxHours.number()) + " " +
                      std::to_string(form.dxMinutes.number()),
                  shown);
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
    form.CompressionLevel = 9;  // of another editor, no entry shows it
    form.dxZipGrade.EditValue = "";
    EXPECT_EQ(saved(form, "ZipGrade"), "9");

    FilledForm untranslated;
    untranslated.TextCatalogue.assign(catalogueSize, "");
    untranslated.dxZipGrade.EditValue = "";
    untranslated.CompressionLevel = 4;
    EXPECT_EQ(saved(untranslated, "ZipGrade"), "4");
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
        const auto editors = [](FilledForm& of) {
            return std::array{&of.dxZipPwd, &of.dxDestZipPwd, &of.dxSource, &of.dxDateTime};
        };
        for (EditorControl* editor : editors(form))
            editor->EditValue = typed;
        save(form, JobStore::Write::create);
        load(loaded);
        for (const EditorControl* editor : editors(loaded))
            EXPECT_EQ(editor->text(), stored) << editor->Name();
        EXPECT_EQ(handler.ReadIniFileValue(infoSection, "x", "", file, textSize), "");
    }
}

}  // namespace

}  // namespace kestedit
