// One table of events for scripts and for hosts in C: what the one can do, the other can, and it comes to the same.
#include <set>
#include <sstream>

#include "component/CallbackDriver.h"
#include "component/events/Properties.h"
#include "component/events/UserEvents.h"
#include "host/ScriptDriver.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit::test {

namespace {

/// One event as a script writes it, and what kestEdit_event takes for it.
struct Event {
    std::string script;
    const char* verb;
    const char* control = nullptr;
    const char* text = nullptr;
    kestEdit_Result result = KESTEDIT_OK;
};

class SharedEvents : public testing::Test, public Surroundings {
  protected:
    SharedEvents() {
        values.Mode = "New";
        values.ViewLevel = "4";
        kestEdit_create("kestEdit.clsEdit", &editor_);
    }
    void TearDown() override { kestEdit_release(editor_); }

    /// What a script prints, and why it fails if it does.
    std::string printedBy(const std::string& script) {
        std::ostringstream out;
        ScriptPrompts questions(out);
        ScriptDriver driver(compileScript(parseScript(script)), questions, out);
        show(questions, driver);
        return out.str() + (driver.failure() ? driver.failure()->what() : "");
    }
    /// Shows the form to a host in C.
    void run(std::function<void()> host) {
        host_ = std::move(host);
        Callbacks callbacks;
        callbacks.run = [](kestEdit_Handle, void* test) { static_cast<SharedEvents*>(test)->host_(); };
        callbacks.folder = [](const char*, const char*, void*) { return "/a b"; };
        callbacks.newFolder = [](kestEdit_Handle editor, void*) {
            kestEdit_event(editor, "type", "dxTextEdit1", "sub");
            kestEdit_event(editor, "click", "cmdCreate", nullptr);
        };
        callbacks.user = this;
        CallbackDriver driver(editor_, callbacks);
        show(driver, driver);
    }
    kestEdit_Result hand(const Event& event) const {
        return kestEdit_event(editor_, event.verb, event.control, event.text);
    }
    /// As `print` prints it.
    std::string got(const std::string& property) const {
        const char* text = nullptr;
        EXPECT_EQ(kestEdit_get(editor_, property.c_str(), &text), KESTEDIT_OK) << kestEdit_lastError();
        return property + " = " + text + '\n';
    }

  private:
    void show(Prompts& questions, ModalRun& driver) {
        Platform own{ini, files, clock, dates, questions, settings};
        frmEdit form(values, own);
        form.Load();
        driver.run(form);
    }

    kestEdit_Handle editor_ = 0;
    std::function<void()> host_;
};

TEST_F(SharedEvents, ComeToTheSameByScriptAndByTheCInterface) {
    const std::string source = jobs.string();
    const Event events[] = {
        {R"(type dxName "Night \"1\"")", "type", "dxName", "Night \"1\""},
        {"type dxSource " + source, "type", "dxSource", source.c_str()},
        {"timer", "timer"},
        {"node 1", "node", nullptr, "1"},
        {"choose optAction 3", "choose", "optAction(3)"},
        {"pick dxZipGrade Hoch", "pick", "dxZipGrade", "Hoch"},
        {"pick-entry dxZipGrade 1", "pick-entry", "dxZipGrade", "1"},
        {"choose optAction 0", "choose", "optAction", "0"},
        {"check chkInactive 2", "check", "chkInactive", "2"},
        {"number dxDays 3", "number", "dxDays", "3"},
        {"spin dxHours down", "spin", "dxHours", "down"},
        {"type dxMinutes 7", "type", "dxMinutes", "7"},
        {"type dxMinutes \"\"", "type", "dxMinutes"},
        {"choose optIntervall 1", "choose", "optIntervall(1)"},
        {"choose optIntTime 3", "choose", "optIntTime(3)"},
        {"set-date dxDate 2028-02-29", "set-date", "dxDate", "2028-02-29"},
        {"set-time dxDateTime 23:59:58", "set-time", "dxDateTime", "23:59:58"},
        {"clear dxDate", "clear", "dxDate"},
        {"key down", "key", nullptr, "down"},
        {"button dxSource 1\ntype dxTextEdit1 sub\nclick cmdCreate", "button", "dxSource", "1"},
        {"folder \"/a b\"\nbutton dxDest 0", "button", "dxDest", "0"},
        {"click cmdNext", "click", "cmdNext"},
        {"close", "close"},
    };
    const std::string fields[] = {"frmEdit.SelectedAction", "frmEdit.FocusedControl", "frmEdit.PageNodeIndex(99)"};
    std::string script;
    std::set<std::string_view> verbs;
    for (const Event& event : events) {
        script += event.script + "\ndump\n";
        for (const std::string& field : fields)
            script += "print " + field + '\n';
        verbs.insert(event.verb);
    }
    std::string printed = printedBy(script);
    std::filesystem::remove(jobs / "sub");

    run([&] {
        FormModel model;
        for (const Event& event : events) {
            SCOPED_TRACE(event.script);
            EXPECT_EQ(hand(event), KESTEDIT_OK) << kestEdit_lastError();
            if (printed.starts_with("folder ")) printed.erase(0, printed.find('\n') + 1);  // what the chooser was asked
            std::string shown;
            for (const EditorControl* control : model.controls()) {
                for (const ControlProperty& property : controlProperties())
                    shown += got(control->Name() + '.' + std::string(property.name));
            }
            for (const std::string& field : fields)
                shown += got(field);
            ASSERT_EQ(shown, printed.substr(0, shown.size()));
            printed.erase(0, shown.size());
        }
    });
    EXPECT_EQ(printed, "");
    for (const UserEvent& event : userEvents())
        EXPECT_TRUE(verbs.contains(event.verb.name)) << event.verb.name;
}

TEST_F(SharedEvents, FailWithTheSameWordsAndTheirCode) {
    const Event events[] = {
        {"type dxNobody x", "type", "dxNobody", "x", KESTEDIT_UNKNOWN_NAME},
        {"choose optAction 6", "choose", "optAction(6)", nullptr, KESTEDIT_UNKNOWN_NAME},
        {"check chkInactive 3", "check", "chkInactive", "3", KESTEDIT_BAD_ARGUMENT},
        {"set-date dxDate 2027-02-29", "set-date", "dxDate", "2027-02-29", KESTEDIT_BAD_ARGUMENT},
        {"set-time dxDateTime \"\"", "set-time", "dxDateTime", nullptr, KESTEDIT_BAD_ARGUMENT},
        {"spin dxHours 1", "spin", "dxHours", "1", KESTEDIT_BAD_ARGUMENT},
        {"type dxHours 5x", "type", "dxHours", "5x", KESTEDIT_BAD_ARGUMENT},
        {"node x", "node", nullptr, "x", KESTEDIT_BAD_ARGUMENT},
        {"node 99", "node", nullptr, "99", KESTEDIT_REFUSED},
        {"button dxSource 2", "button", "dxSource", "2", KESTEDIT_REFUSED},
        {"number dxDays -1", "number", "dxDays", "-1", KESTEDIT_REFUSED},
        {"check dxName 1", "check", "dxName", "1", KESTEDIT_REFUSED},
        {"pick dxZipGrade Most", "pick", "dxZipGrade", "Most", KESTEDIT_REFUSED},
    };
    for (const Event& event : events) {
        const std::string reason = printedBy(event.script);
        run([&] {
            EXPECT_EQ(hand(event), event.result) << event.script;
            EXPECT_EQ(kestEdit_lastError(), reason);
        });
    }
}

}  // namespace

}  // namespace kestedit::test
