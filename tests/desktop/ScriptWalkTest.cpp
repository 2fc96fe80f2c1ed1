// A sample played by keys and mouse writes the same bytes as the script itself.
#include <QCheckBox>
#include <sstream>

#include "host/ScriptDriver.h"
#include "host/ScriptParser.h"
#include "tests/desktop/WindowFixture.h"

namespace kestedit::test {
namespace {

class ScriptWalk : public WindowTest, public testing::WithParamInterface<const char*> {
  protected:
    const std::string script = bytesOf(std::string{KESTEDIT_SAMPLES "/"} + GetParam() + ".script");
    const bool renames = GetParam() == std::string_view{"rename"};

    void begin() {
        std::filesystem::remove_all(jobs);
        std::filesystem::create_directory(jobs);
        setLanguage("english");
        values.Mode = renames ? "Edit" : "New";
        values.ViewLevel = renames ? "9" : "4";
        values.JobFile = renames ? jobFile("Notes").string() : "";
        if (renames) putJob("Notes", "[Job]\r\nName=Notes\r\nSource=/srv/a\r\nDest=/srv/b\r\nInterval=150\r\n");
    }

    /// One line of a script by keys and mouse. Lines that only print are left out.
    void play(const std::vector<std::string>& words) {
        const std::string& verb = words[0];
        const std::string name = words.size() > 1 ? words[1] : "";
        const std::string given = words.size() > 2 ? words[2] : "";
        if (verb == "node") return clickNode(std::stoi(name));
        if (verb == "answer") return prompts.answers.push_back(name == "no" ? Answer::no : Answer::yes);
        if (verb == "choose") return press(name + "(" + given + ")");
        if (verb == "click") return press(name);
        if (verb == "type" || verb == "number" || verb == "clear") return enter(name, given.c_str());
        if (verb == "set-time") return enter(name, QString::fromStdString(given).remove(u':').toUtf8());
        if (verb == "spin") return QTest::keyClick(&focus(name), given == "up" ? Qt::Key_Up : Qt::Key_Down);
        if (verb == "check") {
            turnTo(name);
            if (shownBy<QCheckBox>(name).isChecked() != (given == "1")) press(name);
            return;
        }
        EXPECT_TRUE(verb == "print" || verb == "nodes" || verb == "frames") << "nobody plays " << verb;
    }

    std::string byScript() {
        begin();
        std::ostringstream out;
        ScriptPrompts queued(out);
        Platform scripted{ini, files, clock, dates, queued, settings};
        frmEdit editor(values, scripted);
        ScriptDriver driver(compileScript(parseScript(script)), queued, out);
        editor.Load();
        driver.run(editor);
        EXPECT_FALSE(driver.failure().has_value()) << out.str();
        return allJobs();
    }

    std::string byWindow() {
        begin();
        open(values.Mode, std::stoi(values.ViewLevel));
        for (const ScriptLine& line : parseScript(script)) {
            if (form().isOpen()) play(line.words);
            settle();
        }
        EXPECT_FALSE(form().isOpen());
        return allJobs();
    }

    std::string allJobs() {
        std::string all;
        for (const auto& job : std::filesystem::directory_iterator(jobs))
            all += job.path().filename().string() + "\n" + bytesOf(job.path());
        return all;
    }
};

TEST_P(ScriptWalk, WritesTheSameBytes) {
    EXPECT_EQ(byWindow(), byScript());
}

INSTANTIATE_TEST_SUITE_P(Samples, ScriptWalk, testing::Values("create", "rename", "compress", "sync", "monitor"),
                         [](const auto& sample) { return std::string{sample.param}; });

}  // namespace
}  // namespace kestedit::test
