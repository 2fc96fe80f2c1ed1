// The way of a form into a job file and back.
#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <sstream>
#include <tuple>

#include "persistence/JobFormat.h"
#include "persistence/JobStore.h"
#include "persistence/modSaveValues.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

using test::bytesOf;
using test::now;

struct JobTest : test::EditorTest {
    void load(std::string_view bytes) {
        putJob("a", bytes);
        edit("a");
    }
    /// Writes the form's values to a file that holds nothing else.
    void save() { JobStore{ini}.create(jobFile("a"), SaveValues(form(), dates, now)); }
    /// What a save writes for a key; "(none)" without the key.
    std::string saved(std::string_view key) {
        const auto before = SaveValues(form(), dates, now);
        CorrectValues(form());
        const auto lines = SaveValues(form(), dates, now);
        EXPECT_TRUE(std::ranges::equal(before, lines, {}, &JobLine::value, &JobLine::value)) << "known before as well";
        for (const JobLine& line : lines)
            if (line.key == key) return line.value;
        return "(none)";
    }
};
/// In one word.
std::string valueOf(const Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<std::int64_t>(&value)) return std::to_string(*number);
    if (const auto* date = std::get_if<Date>(&value)) return DateFormat("yyyy-MM-dd").text(*date);
    if (const auto* time = std::get_if<TimeOfDay>(&value)) return timeText(*time);
    return "";
}

using LoadTest = JobTest;
using SaveTest = JobTest;

// Authors of runners read the document, not the code.
TEST(JobFormat, TheDocumentListsTheSameKeysInTheSameOrder) {
    const std::string text = bytesOf(KESTEDIT_DOCS "/job-file.md");
    std::string listed;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("| `")) continue;
        std::istringstream cells(line);  // "| `key` | `control` | ..." between its backquotes
        std::string bar, key, control;
        std::getline(std::getline(std::getline(cells, bar, '`'), key, '`'), bar, '`');
        if (bar == " | ") std::getline(cells, control, '`');
        listed += key + " " + control + "\n";
    }
    std::string expected;
    for (const JobRow& line : jobFormat())
        expected.append(line.key).append(" ").append(line.control).append("\n");
    EXPECT_EQ(listed, expected);
}

/// Each key alone and what it moves in the form: the agreement with runners. No target writes this file; a new key is
/// entered by hand, and a line that changes breaks jobs.
TEST_F(LoadTest, EachKeyMovesTheControlsOfTheApprovedList) {
    const auto contents = [this] {
        std::map<std::string, std::string> all;
        for (const EditorControl* control : form().controls()) {
            const auto value = control->Kind == ControlKind::option || control->Kind == ControlKind::check
                                   ? Value{std::int64_t{control->State}}
                                   : control->EditValue;
            all[control->Name()] = testing::PrintToString(value.index()) + "/" + valueOf(value);
        }
        return all;
    };
    load("[Job]\n");
    const auto untouched = contents();
    std::istringstream approved(bytesOf(KESTEDIT_APPROVED_FORMAT));
    std::string keys;
    for (std::string line; std::getline(approved, line);) {
        const std::string entry = line.substr(0, line.find(' '));
        load("[Job]\n" + entry + "\n");
        std::string moved = entry;
        for (const auto& [name, content] : contents())
            if (untouched.at(name) != content) moved += " " + name + "=" + content.substr(2);
        EXPECT_EQ(moved, line);
        keys += entry.substr(0, entry.find('=')) + "\n";
    }
    std::string written;
    for (const JobRow& row : jobFormat())
        written.append(row.key).append("\n");
    EXPECT_EQ(written, keys) << "every key once, in the order of the file";
}

TEST_F(LoadTest, AbsentKeysLeaveWhatTheControlsAccept) {
    load("[Job]\n");
    EXPECT_EQ(form().optExist.selected(), 0);
    EXPECT_FALSE(form().optAttrSetDest.selected());
    EXPECT_EQ(form().dxMonDelay.number(), 5);
    EXPECT_EQ(form().dxHours.number(), 1);
    EXPECT_EQ(form().CompressionLevel, 3);
    EXPECT_EQ(form().dxDateTime.EditValue, Value{});
    EXPECT_EQ(form().dxDateFrom.date(), addDays(now.date, -1));
    EXPECT_EQ(form().dxDate.date(), now.date);
}

TEST_F(LoadTest, ValuesOutsideTheirRangeStandForTheFirst) {
    load("[Job]\nComment=a^b" + std::string(300, 'c') +
         "\nSubFolder=7\nRunOnce=-1\nExist=5\nAction=-2\nPickRenamer=4\nIntWeekDay=0\nMonWatch=5\nEFSelect=7\n"
         "ZipGrade=9\nMonDelay=\nExecMaxSec=1e3\nFileAgeDiff=99999999999999999999\nInterval=4565\nIntervalTime=noon\n");
    EXPECT_EQ(form().dxComment.text(), "a\r\nb" + std::string(252, 'c')) << "cut, and with its line break";
    for (const char* first : {"chkSubFolder", "chkRunOnce"})
        EXPECT_EQ(at(first).State, 0) << first;
    EXPECT_EQ(form().optExist.selected(), 0);
    EXPECT_EQ(form().optAction.selected(), 0);
    for (const char* list : {"dxPickRenamer", "dxIntWeekDay", "dxMonWatch", "dxZipGrade"})
        EXPECT_EQ(at(list).text(), "") << list;
    EXPECT_EQ(form().dxPickExistSelecter.itemIndex(), 7);
    EXPECT_EQ(form().CompressionLevel, 9);
    EXPECT_EQ(form().dxMonDelay.EditValue, Value{});
    EXPECT_EQ(form().dxExecMaxSec.number(), 60);
    EXPECT_EQ(form().dxAge.number(), 1);
    EXPECT_EQ(form().dxDateTime.EditValue, Value{"noon"});
}

TEST_F(LoadTest, AbsurdNumbersAreNotTakenOver) {
    for (const std::string number : {"-1", "9223372036854775807", "-9223372036854775808", "99999999999999999999999"}) {
        std::string job = "[Job]\n";
        for (const JobRow& row : jobFormat())
            job.append(row.key).append("=").append(number).append("\n");
        prompts.answers = {Answer::ok};  // the dates are none
        load(job);
        spin("dxHours", true);
        spin("dxMinutes", false);
        for (const JobRow& row : jobFormat())
            EXPECT_TRUE(row.form > ValueForm::optionalIndex || saved(row.key) == number) << row.key << '=' << number;
        type("dxName", "b" + number);
        click("cmdSave");
        EXPECT_FALSE(form().isOpen());
    }
}

// With Windows line ends. Each text of the job says which field it is for.
TEST_F(SaveTest, AFullJobComesBackByteForByte) {
    const std::string job = bytesOf(KESTEDIT_FULL_JOB);
    load(job);
    std::string others;
    for (const EditorControl* control : form().controls()) {
        const bool isText = control->Kind >= ControlKind::text && control->Kind <= ControlKind::path;
        if (isText && control->text() != "the " + control->Name()) others += control->text() + ",";
    }
    EXPECT_EQ(others, "first\r\nsecond,\"quoted\", blanks ,");
    save();
    const std::string info = "[Info]\r\nProgVersion=" + std::string{programVersion()} + "\r\n";
    std::string saved;  // without keys that are newer than the job
    std::istringstream lines(jobBytes("a"));
    for (std::string line; std::getline(lines, line);)
        if ((job + info).find("\n" + line.substr(0, line.find('=') + 1)) != std::string::npos || saved.empty())
            saved += line + "\n";
    EXPECT_EQ(saved, job + info);
}

TEST_F(SaveTest, CorrectsTheFormOnTheWay) {
    create();
    form().chkDelEFol.State = 1;
    form().dxFreeSpace.EditValue = std::int64_t{500};
    form().dxDateTime.EditValue = "1";
    EXPECT_EQ(saved("DelEFol"), "0");
    EXPECT_EQ(form().chkDelEFol.State, 0);
    EXPECT_EQ(saved("FreeSpaceVal"), "2000");
    EXPECT_EQ(form().dxFreeSpace.number(), 2000);
    EXPECT_EQ(saved("IntervalTime"), "00:00:00");
    EXPECT_EQ(form().dxDateTime.time(), TimeOfDay{0});

    form().chkSubFolder.State = 2;  // grey is not off
    form().chkDelEFol.State = 1;
    EXPECT_EQ(saved("DelEFol"), "1");
}

TEST_F(SaveTest, WhatIsEmptyOrNotChosenFollowsTheRuleOfItsRow) {
    create();
    for (EditorControl* control : form().controls()) {
        control->State = 0;
        control->pick(-1);
        control->EditValue = {};
    }
    form().optExt[1].State = form().optSize[1].State = 1;
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
        EXPECT_EQ(saved(key), value) << key;
    form().optAction.select(5);
    EXPECT_EQ(saved("FStruct"), "1");
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
        create();
        for (const auto& [i, field] : {std::pair{0U, "dxDays"}, {1U, "dxHours"}, {2U, "dxMinutes"}})
            at(field).EditValue = typed[i];
        EXPECT_EQ(saved("Interval"), std::to_string(minutes));
        EXPECT_EQ(saved("Counter"), std::to_string(minutes));
        EXPECT_EQ((Numbers{at("dxDays").number(), at("dxHours").number(), at("dxMinutes").number()}), shown);
    }
}

TEST_F(SaveTest, TellsOfAMissedRunOnlyAfterTheRunTime) {
    create();
    for (const auto& [time, state] :
         {std::pair{Value{}, "(none)"}, {now.time, "(none)"}, {now.time - std::chrono::seconds{1}, "20.11.2026"}}) {
        form().dxDateTime.EditValue = time;
        EXPECT_EQ(saved("IntState"), state);
    }
}

TEST_F(SaveTest, CompressionLevel) {
    create();
    form().CompressionLevel = 9;  // of another editor, no entry shows it
    EXPECT_EQ(saved("ZipGrade"), "9");
    act(3);
    form().dxZipGrade.Items.assign(4, "");
    EXPECT_EQ(form().dxZipGrade.distinctItems(), (std::vector<std::string>{"1", "2", "3", "4"}));
    pick("dxZipGrade", 3);
    EXPECT_EQ(saved("ZipGrade"), "4") << "without texts all entries are equal";
}

TEST_F(SaveTest, EveryTextComesBackAndNoneForgesALine) {
    using namespace std::string_literals;
    const std::pair<std::string, std::string> texts[] = {
        {"a\t", "a\t"},   {"'a'", "'a'"}, {"\"\"a\"\"", "\"\"a\"\""}, {"\"", "\""},
        {" ", " "},       {"''", "''"},   {"a;b=c#", "a;b=c#"},       {"[Info]", "[Info]"},
        {"\ra\n", " a "}, {"a\0"s, "a "}, {"\"a\"\n", "\"a\" "},      {"a\r\n[Info]\r\nx=1", "a  [Info]  x=1"}};
    for (const auto& [typed, stored] : texts) {
        create();
        for (const auto name : {"dxZipPwd", "dxSource", "dxDateTime"})
            at(name).EditValue = typed;
        save();
        edit("a");
        for (const auto name : {"dxZipPwd", "dxSource", "dxDateTime"})
            EXPECT_EQ(at(name).text(), stored) << name;
        EXPECT_EQ(ini.read(jobFile("a"), infoSection, "x", "", textSize), "");
    }
}

}  // namespace
}  // namespace kestedit
