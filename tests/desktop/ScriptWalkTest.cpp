// The same walk by a script and by keys and mouse writes the same bytes.
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <sstream>

#include "desktop/widgets/DateEdit.h"
#include "desktop/widgets/TimeEdit.h"
#include "host/ScriptDriver.h"
#include "host/ScriptParser.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

struct Walk {
    const char* name;
    std::string script;
    const char* opens = "";  ///< a job that an earlier walk has made; empty for a new one
    int view = 4;
};

std::string sample(const char* name) {
    return bytesOf(std::filesystem::path(KESTEDIT_SAMPLES) / name);
}

void PrintTo(const Walk& walk, std::ostream* out) {
    *out << walk.name;
}

class ScriptWalk : public WindowTest, public testing::WithParamInterface<Walk> {
  protected:
    /// One line of a script by keys and mouse. Lines that only print are left out.
    void play(const std::vector<std::string>& words) {
        const std::string& verb = words[0];
        const std::string name = words.size() > 1 ? words[1] : "";
        const std::string given = words.size() > 2 ? words[2] : "";
        if (verb == "node") return clickNode(std::stoi(name));
        if (verb == "answer")
            return prompts.answers.push_back(name == "yes" ? Answer::yes : name == "no" ? Answer::no : Answer::ok);
        if (verb == "folder" || verb == "file") return prompts.choices.push_back(name);
        if (verb == "choose") return press(name + "(" + given + ")");
        if (verb == "click") return press(name);
        if (verb == "check") {
            turnTo(name);
            if (shownBy<QCheckBox>(name).isChecked() != (given == "1")) press(name);
            return;
        }
        if (verb == "type") return at(name).Kind == ControlKind::memo ? write(name, given) : enter(name, given.c_str());
        if (verb == "number") return enter(name, given.c_str());
        if (verb == "clear") return enter(name, "");
        if (verb == "button") {
            turnTo(name);
            return QTest::mouseClick(binding(name).focusWidgets().at(static_cast<std::size_t>(std::stoi(given)) + 1),
                                     Qt::LeftButton);
        }
        if (verb == "spin" || verb == "pick" || verb == "set-date" || verb == "set-time") {
            turnTo(name);
            focusOf(name).setFocus();
            if (verb == "spin") QTest::keyClick(&focusOf(name), given == "up" ? Qt::Key_Up : Qt::Key_Down);
            if (verb == "pick") pickByKeys(shownBy<QComboBox>(name), toQt(given));
            if (verb == "set-date")
                QTest::keyClicks(&focusOf(name),
                                 QString(QDate::fromString(toQt(given), Qt::ISODate).toString("ddMMyyyy")));
            if (verb == "set-time") shownBy<TimeEdit>(name).setTime(QTime::fromString(toQt(given), Qt::ISODate));
            return;
        }
        const std::vector<std::string> silent{"print", "nodes", "frames", "tabs", "dump", "timer"};
        EXPECT_TRUE(std::ranges::find(silent, verb) != silent.end()) << "nobody plays " << verb;
    }

    void write(const std::string& name, const std::string& text) {
        turnTo(name);
        auto& memo = shownBy<QPlainTextEdit>(name);
        memo.setFocus();
        memo.selectAll();
        for (const QChar letter : toQt(text))
            letter == u'\n' ? QTest::keyClick(&memo, Qt::Key_Return) : QTest::keyClicks(&memo, QString(letter));
    }

    static void pickByKeys(QComboBox& box, const QString& entry) {
        QTest::keyClick(&box, Qt::Key_Home);
        for (int i = 0; i < box.findText(entry); ++i)
            QTest::keyClick(&box, Qt::Key_Down);
    }

    std::string byScript(const Walk& walk) {
        std::ostringstream out;
        ScriptPrompts queued(out);
        Platform scripted{ini, files, clock, dates, queued, settings};
        frmEdit editor(values, scripted);
        ScriptDriver driver(compileScript(parseScript(walk.script)), queued, out);
        driver.queueFirstAnswers();
        editor.Load();
        driver.run(editor);
        EXPECT_FALSE(driver.failure().has_value()) << out.str();
        return allJobs();
    }

    std::string byWindow(const Walk& walk) {
        open(values.Mode, walk.view);
        for (const ScriptLine& line : parseScript(walk.script)) {
            SCOPED_TRACE("line " + std::to_string(line.number));
            if (!form().isOpen()) break;
            play(line.words);
            settle();
        }
        return allJobs();
    }

    std::string allJobs() {
        std::string all;
        std::istringstream names(jobNames());
        for (std::string name; names >> name;)
            all += name + "\n" + bytesOf(jobs / name);
        return all;
    }

    void begin(const Walk& walk) {
        std::filesystem::remove_all(jobs);
        std::filesystem::create_directories(jobs);
        setLanguage("english");
        values.Mode = *walk.opens ? "Edit" : "New";
        values.ViewLevel = std::to_string(walk.view);
        if (*walk.opens) {
            putJob(walk.opens, "[Job]\r\nName=Notes\r\nSource=/srv/a\r\nDest=/srv/b\r\nInterval=150\r\n");
            values.JobFile = jobFile(walk.opens).string();
        }
    }
};

TEST_P(ScriptWalk, WritesTheSameBytes) {
    begin(GetParam());
    const std::string scripted = byScript(GetParam());
    begin(GetParam());
    EXPECT_EQ(byWindow(GetParam()), scripted);
    EXPECT_NE(scripted, "");
    EXPECT_FALSE(form().isOpen());
}

INSTANTIATE_TEST_SUITE_P(Walks, ScriptWalk,
                         testing::Values(Walk{"create", sample("create.script")},
                                         Walk{"rename", sample("rename.script"), "Notes", 9},
                                         Walk{"password", R"(type dxName Packed
choose optAction 3
type dxSource /srv/a
type dxDest /srv/b
check chkSubFolder 1
check chkZipAll 1
check chkZipDelComp 1
check chkZipDelCompBin 1
type dxZipPwd "s3cret word"
pick dxZipGrade High
click cmdSave
)"},
                                         Walk{"both-ways", R"(type dxName "Two ways"
choose optAction 5
folder /srv/a
button dxSource 0
type dxDest /srv/b
choose optIntervall 1
choose optIntTime 3
set-time dxDateTime 22:30:15
set-date dxDate 2027-02-28
choose optSyncStart 1
choose optSyncExist 2
pick dxPickExistSelecter "the source file is larger and newer than the existing file"
check chkPreview 1
check chkPreview 0
click cmdSave
)"},
                                         Walk{"monitored", R"(type dxName Watched
type dxComment "one\ntwo"
choose optAction 1
type dxSource /srv/a
type dxDest /srv/b
choose optIntervall 2
choose optMonitorPath 2
type dxMonitorPath /srv/c
number dxMonDelay 12
pick dxMonWatch "File size"
check chkMonSubFolder 1
check chkExecDo 1
type dxExecPath /usr/bin/true
type dxExecParam "-a <b> \"c\""
check chkExecWait 1
number dxExecMaxSec 90
check chkRunOnce 1
choose optFileMatch 2
check chkRegExFile 1
type dxFileName "^a.*\\.txt$"
choose optSize 1
number dxSize 4096
choose optAge 1
spin dxAgeMinutes down
choose optExist 2
type dxRenamer "old_x?1"
answer ok
click cmdSave
click cmdSave
)"}),
                         [](const auto& walk) {
                             std::string name = walk.param.name;
                             std::erase(name, '-');
                             return name;
                         });

}  // namespace
}  // namespace kestedit::test
