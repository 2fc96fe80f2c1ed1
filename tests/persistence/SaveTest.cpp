#include <array>
#include <limits>
#include <tuple>

#include "persistence/modSaveValues.h"
#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

namespace fs = std::filesystem;
using SaveTest = JobTest;

// The text of the filled form, with Windows line ends; only the version behind it moves on.
std::string expectedJob() {
    return bytesOf(fs::path(__FILE__).parent_path() / "full.job") +
           "[Info]\r\nProgVersion=" + std::string{programVersion()} + "\r\n";
}

TEST_F(SaveTest, AFullJobIsWrittenByteForByteAndComesBack) {
    FilledForm form;
    form.fill();
    save(form);
    EXPECT_EQ(bytesOf(file), expectedJob());

    FilledForm loaded;
    load(loaded);
    loaded.Navigation = form.Navigation;
    loaded.PageNodeIndex = form.PageNodeIndex;
    save(loaded, JobStore::Write::create);
    EXPECT_EQ(bytesOf(file), expectedJob());
}

// An editor nobody has touched: nothing is picked, several editors are empty, some groups have no choice.
TEST_F(SaveTest, AnUntouchedJobComesBackAsItWas) {
    FilledForm form;
    SetNewJobDefaults(form, now);
    form.dxMonDelay.EditValue = std::monostate{};
    save(form);
    const std::string first = bytesOf(file);
    FilledForm loaded;
    load(loaded);
    EXPECT_EQ(loaded.dxMonDelay.EditValue, Value{});
    save(loaded, JobStore::Write::create);
    EXPECT_EQ(bytesOf(file), first);
}

TEST_F(SaveTest, KeepsWhatItDoesNotKnowAndMakesTheFileWritable) {
    put("; by hand\n[Job]\nname=old\nMine=1\n\n[Runner]\nLast=5\n");
    fs::permissions(file, fs::perms::owner_read);
    FilledForm form;
    form.dxName.EditValue = "new";
    save(form);
    const std::string bytes = bytesOf(file);
    EXPECT_TRUE(bytes.starts_with("; by hand\n[Job]\nname=new\nMine=1\nFrom=\n")) << bytes;
    EXPECT_NE(bytes.find("\n\n[Runner]\nLast=5\n[Info]\nProgVersion="), bytes.npos) << bytes;
    EXPECT_NE(fs::status(file).permissions() & fs::perms::owner_write, fs::perms::none);
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
        FilledForm::setDuration(form.dxDays, form.dxHours, form.dxMinutes, d, h, m);
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

TEST_F(SaveTest, LeavesTheNotesOutOnRequest) {
    FilledForm form;
    for (const JobLine& line : SaveValues(form, dates, now, true))
        EXPECT_TRUE(line.key != "Comment" && line.key != "NodeIcon");
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

TEST_F(SaveTest, RenameLeavesOneWholeJobAndAFailureTheOldOne) {
    const std::string old = "[Job]\nName=a\nMine=1\n";
    put(old);
    FilledForm form;
    form.fill();
    EXPECT_THROW(jobs.rename(file, folder / "missing" / "b.job", SaveValues(form, dates, now)), std::system_error);
    form.dxSource.EditValue = "\u65e5\u672c";  // not in the code page
    EXPECT_THROW(save(form), std::invalid_argument);
    EXPECT_THROW(jobs.rename(file, folder / "b.job", SaveValues(form, dates, now)), std::invalid_argument);
    EXPECT_EQ(bytesOf(file), old);
    EXPECT_EQ(temporary.names(), std::vector<std::string>{"a.job"});

    form.dxSource.EditValue = "the dxSource";
    jobs.rename(file, folder / "b.job", SaveValues(form, dates, now));
    EXPECT_EQ(bytesOf(folder / "b.job"), expectedJob());
    EXPECT_EQ(temporary.names(), std::vector<std::string>{"b.job"});
}

}  // namespace

}  // namespace kestedit
