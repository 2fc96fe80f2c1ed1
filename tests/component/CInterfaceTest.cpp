// The C interface as a host in another language meets it: a whole run, and everything a host can get wrong.
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <thread>
#include <tuple>
#include <utility>

#include "component/kestEdit.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {

namespace {

/// An editor by its handle. Its driver runs `script_`; its questions go to `answer_`, its events to `hear_`.
class CInterfaceTest : public testing::Test {
  protected:
    CInterfaceTest() : editor_(create()) {}
    void TearDown() override { kestEdit_release(editor_); }

    kestEdit_Handle create() {
        kestEdit_Handle editor = 0;
        EXPECT_EQ(kestEdit_create("kestEdit.clsEdit", &editor), KESTEDIT_OK) << kestEdit_lastError();
        const auto set = [editor](const char* name, const std::string& text) {
            EXPECT_EQ(kestEdit_setText(editor, name, text.c_str()), KESTEDIT_OK) << kestEdit_lastError();
        };
        set("Mode", "New");
        set("JobDir", folder_.path());
        set("JobExtension", ".job");
        set("INIFile", folder_.path() / "program.ini");
        set("Language", KESTEDIT_LANG_DIR "/english.lng");
        kestEdit_setDriver(editor, &run, &ask, this);
        kestEdit_onSearchJobs(editor, &searchJobs, this);
        kestEdit_onSetNewValues(editor, &setNewValues, this);
        return editor;
    }
    void show(std::function<void()> script, kestEdit_Result expected = KESTEDIT_OK) {
        script_ = std::move(script);
        EXPECT_EQ(kestEdit_show(editor_, 4), expected) << kestEdit_lastError();
    }
    /// The value of a property, or an empty text when it is answered by another code.
    std::string got(const char* property, kestEdit_Result expected = KESTEDIT_OK) const {
        const char* text = nullptr;
        EXPECT_EQ(kestEdit_get(editor_, property, &text), expected) << kestEdit_lastError();
        return text;
    }
    kestEdit_Result event(const char* verb, const char* control = nullptr, const char* text = nullptr) const {
        return kestEdit_event(editor_, verb, control, text);
    }
    void save(kestEdit_Result expected = KESTEDIT_OK, const char* name = "Night") const {
        EXPECT_EQ(event("type", "dxName", name), KESTEDIT_OK) << kestEdit_lastError();
        EXPECT_EQ(event("click", "cmdSave"), expected) << kestEdit_lastError();
    }

    static CInterfaceTest& self(void* user) { return *static_cast<CInterfaceTest*>(user); }
    static void run(kestEdit_Handle, void* user) { self(user).script_(); }
    static std::int32_t ask(const char* title, const char* text, std::int32_t, void* user) {
        return self(user).answer_(std::string(title) + ": " + text);
    }
    static const char* choose(const char* title, const char* from, void* user) {
        return self(user).choose_(title, from);
    }
    static void newFolder(kestEdit_Handle, void* user) { self(user).newFolder_(); }
    static void searchJobs(void* user) { self(user).hear_("SearchJobs"); }
    static void setNewValues(const char* text, void* user) { self(user).hear_("SetNewValues" + std::string(text)); }

    TemporaryFolder folder_;
    const std::filesystem::path job_ = folder_.path() / "Night.job";
    std::function<void()> script_;
    std::function<int(std::string)> answer_;
    std::function<const char*(std::string, std::string)> choose_;
    std::function<void()> newFolder_;
    std::function<void(std::string)> hear_ = [this](const std::string& event) { heard_ += event + ";"; };
    std::string heard_;
    const kestEdit_Handle editor_;
};

TEST_F(CInterfaceTest, EventsFillAJobOrAreAnswered) {
    const std::tuple<const char*, const char*, const char*, kestEdit_Result> events[] = {
        {"choose", "optAction(3)", nullptr, KESTEDIT_OK},     {"pick", "dxZipGrade", "Low", KESTEDIT_OK},
        {"check", "chkFreeSpace", "1", KESTEDIT_OK},          {"type", "dxFreeSpace", "4711", KESTEDIT_OK},
        {nullptr, nullptr, nullptr, KESTEDIT_BAD_ARGUMENT},   {"wish", "dxName", "x", KESTEDIT_UNKNOWN_NAME},
        {"type", "dxNobody", "x", KESTEDIT_UNKNOWN_NAME},     {"click", nullptr, nullptr, KESTEDIT_UNKNOWN_NAME},
        {"type", "dxFreeSpace", "5x", KESTEDIT_BAD_ARGUMENT}, {"check", "chkFreeSpace", "3", KESTEDIT_BAD_ARGUMENT},
        {"check", "dxName", "1", KESTEDIT_REFUSED},
    };
    show([&] {
        for (const auto& [verb, control, text, result] : events)
            EXPECT_EQ(event(verb, control, text), result) << kestEdit_lastError();
        save();
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_REFUSED);
        EXPECT_STREQ(kestEdit_lastError(), "the form has closed");
    });
    EXPECT_EQ(event("close"), KESTEDIT_REFUSED);
    for (const char* line : {"\r\nAction=3\r\n", "\r\nZipGrade=2\r\n", "\r\nFreeSpaceVal=4711\r\n"})
        EXPECT_NE(bytesOf(job_).find(line), std::string::npos) << bytesOf(job_);
    kestEdit_setDriver(editor_, nullptr, nullptr, nullptr);
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_NO_WINDOW);
}

TEST_F(CInterfaceTest, OneEventForEachEndUntilOneIsCancelled) {
    answer_ = [](const std::string&) { return KESTEDIT_ANSWER_YES; };
    /// What a host hears of a run that saves the job "old", or a new one, under a name; without a name, closes it.
    const auto heardOf = [this](const char* mode, const char* name) {
        kestEdit_setText(editor_, "Mode", mode);
        kestEdit_setText(editor_, "JobFile", folder_.file("old.job", "[Job]\r\nName=old\r\n").c_str());
        show([&] { name ? save(KESTEDIT_OK, name) : static_cast<void>(event("close")); });
        return std::exchange(heard_, "");
    };
    EXPECT_EQ(heardOf("New", "a"), "SearchJobs;");
    EXPECT_EQ(heardOf("New", nullptr), "SearchJobs;");
    EXPECT_EQ(heardOf("Edit", "old"), "SetNewValues;");
    EXPECT_EQ(heardOf("Edit", nullptr), "SetNewValues;");
    EXPECT_EQ(heardOf("new", nullptr), "SetNewValues;");
    EXPECT_EQ(heardOf("Edit", "renamed"), "SearchJobs;");
    EXPECT_EQ(heardOf("Edit", "a"), "SearchJobs;") << "overwritten";
    show([] {});
    EXPECT_EQ(heard_, "") << "what a driver leaves open is cancelled";
    EXPECT_EQ(heardOf("New", "b"), "") << "for good";
    EXPECT_EQ(folder_.names(), "a.job b.job old.job renamed.job ");
}

TEST_F(CInterfaceTest, MessageBoxesGetTheirCarefulAnswerOrGoToTheHost) {
    const std::string other = "[Job]\r\nName=old\r\n";
    static_cast<void>(folder_.file("Night.job", other));
    kestEdit_setDriver(editor_, &run, nullptr, this);
    show([this] {
        EXPECT_EQ(event("type", "dxSource", "/日"), KESTEDIT_REFUSED);
        EXPECT_STREQ(kestEdit_lastError(), "The text contains characters that the job file cannot hold: U+65E5 日");
        save();
    });
    EXPECT_EQ(bytesOf(job_), other);

    kestEdit_setDriver(editor_, &run, &ask, this);
    int answer = 0;
    answer_ = [&](const std::string& question) {
        EXPECT_TRUE(question.starts_with("Message: A job with this name already exists!\r\n")) << question;
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_BUSY);
        return answer;
    };
    show([&] {
        for (const int noButton : {static_cast<int>(KESTEDIT_ANSWER_RETRY), -1}) {
            answer = noButton;
            save(KESTEDIT_BAD_ARGUMENT);
            EXPECT_EQ(bytesOf(job_), other);
        }
        answer = KESTEDIT_ANSWER_YES;
        save();
    });
    EXPECT_NE(bytesOf(job_), other);
}

TEST_F(CInterfaceTest, HandlesNamesTypesAndPointersAreChecked) {
    const kestEdit_Handle released = create();
    ASSERT_EQ(kestEdit_release(released), KESTEDIT_OK);
    const kestEdit_Handle next = create();  // gets a handle of its own
    for (const kestEdit_Handle handle : {kestEdit_Handle{0}, released, ~kestEdit_Handle{0}}) {
        EXPECT_EQ(kestEdit_release(handle), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_show(handle, 4), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_event(handle, "close", nullptr, nullptr), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_lastError(), "no editor has the handle " + std::to_string(handle));
    }
    EXPECT_EQ(kestEdit_release(next), KESTEDIT_OK);
    kestEdit_Handle handle = 42;
    EXPECT_EQ(kestEdit_create("kestEdit.frmEdit", &handle), KESTEDIT_UNKNOWN_NAME);
    EXPECT_EQ(handle, 0U);
    EXPECT_EQ(kestEdit_create(nullptr, &handle), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_create("kestEdit.clsEdit", nullptr), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_setText(editor_, "Colour", "red"), KESTEDIT_UNKNOWN_NAME);
    EXPECT_EQ(kestEdit_setText(editor_, nullptr, "New"), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_setText(editor_, "Mode", nullptr), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_setInteger(editor_, "JobDir", 4), KESTEDIT_WRONG_TYPE);
    EXPECT_EQ(kestEdit_setText(editor_, "View", "4"), KESTEDIT_WRONG_TYPE);
    EXPECT_EQ(kestEdit_setInteger(editor_, "View", 32767), KESTEDIT_OK);
    EXPECT_EQ(kestEdit_setInteger(editor_, "View", 32768), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_show(editor_, -32769), KESTEDIT_BAD_ARGUMENT);
}

TEST_F(CInterfaceTest, CallsFromInsideARunAnEventOrAnotherThreadAreAnswered) {
    const kestEdit_Handle other = create();
    const auto misbehave = [&] {
        EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_release(editor_), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_setText(editor_, "Mode", "Edit"), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_show(other, 4), KESTEDIT_EDITOR_OPEN);
        EXPECT_EQ(kestEdit_event(other, "close", nullptr, nullptr), KESTEDIT_REFUSED);
        heard_ += "misbehaved;";
    };
    hear_ = [&](const std::string&) { misbehave(); };
    const std::string error = kestEdit_lastError();
    show([&] {
        std::thread([&] {
            misbehave();
            EXPECT_EQ(event("close"), KESTEDIT_REFUSED);
        }).join();
        EXPECT_EQ(kestEdit_lastError(), error);  // each thread has its own
        misbehave();
        save();
    });
    EXPECT_EQ(heard_, "misbehaved;misbehaved;misbehaved;");
    EXPECT_EQ(kestEdit_release(other), KESTEDIT_OK);
}

TEST_F(CInterfaceTest, PropertiesAreReadAsScriptsPrintThem) {
    answer_ = [&](const std::string&) {
        EXPECT_EQ(got("dxName.EditValue"), "\"Night\"");
        return KESTEDIT_ANSWER_NO;
    };
    static_cast<void>(folder_.file("Night.job", ""));
    show([&] {
        EXPECT_EQ(event("type", "dxComment", "a\n\"ä\""), KESTEDIT_OK);
        const std::pair<const char*, const char*> values[] = {
            {"dxComment.EditValue", "\"a\\r\\n\\\"ä\\\"\""},
            {"dxHours.EditValue", "1"},
            {"dxSize.EditValue", "Empty"},
            {"cmdSave.Enabled", "True"},
            {"dxZipGrade.Items", R"(["None", "Low", "Normal", "High"])"},
            {"frmEdit.Mode", "\"New\""},
        };
        for (const auto& [property, value] : values)
            EXPECT_EQ(got(property), value);
        const std::tuple<const char*, kestEdit_Result, const char*> mistakes[] = {
            {"dxNobody.State", KESTEDIT_UNKNOWN_NAME, "no control named dxNobody"},
            {"dxName.Size", KESTEDIT_UNKNOWN_NAME, "dxName has no property Size"},
            {"frmEdit.TextCatalogue(85)", KESTEDIT_UNKNOWN_NAME, "frmEdit has no property TextCatalogue(85)"},
            {"dxName", KESTEDIT_BAD_ARGUMENT, "\"dxName\" is not a name, a dot and a property"},
            {"dlgNewFolder.Caption", KESTEDIT_REFUSED, "dlgNewFolder is not open"},
            {nullptr, KESTEDIT_BAD_ARGUMENT, "the name of the property is null"},
        };
        for (const auto& [property, result, reason] : mistakes) {
            EXPECT_EQ(got(property, result), "");
            EXPECT_STREQ(kestEdit_lastError(), reason);
        }
        EXPECT_EQ(kestEdit_get(editor_, "dxName.State", nullptr), KESTEDIT_BAD_ARGUMENT);
        save();
        EXPECT_EQ(event("close"), KESTEDIT_OK);
        EXPECT_EQ(got("dxName.EditValue"), "\"Night\"") << "of a closed form, too";
    });
    EXPECT_EQ(got("dxName.EditValue", KESTEDIT_REFUSED), "");
}

TEST_F(CInterfaceTest, InnerButtonsLeadToTheHostsChoosersAndDialog) {
    const std::string path = folder_.path().string();
    show([&] {
        for (const char* button : {"0", "1"})
            EXPECT_EQ(event("button", "dxSource", button), KESTEDIT_OK) << "cancelled without a chooser";
        EXPECT_EQ(got("dxSource.EditValue"), "\"\"");
    });
    kestEdit_setChoosers(editor_, &choose, &choose, &newFolder, this);
    choose_ = [&](const std::string& title, const std::string& from) {
        heard_ += title + from + ";";
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_BUSY);
        return title.starts_with("Select source") ? path.c_str() : "/bin/true";
    };
    answer_ = [](const std::string&) { return KESTEDIT_ANSWER_OK; };  // the folder exists
    newFolder_ = [&] {
        EXPECT_EQ(event("check", "chkSubFolder", "1"), KESTEDIT_REFUSED);
        EXPECT_STREQ(kestEdit_lastError(), "dlgNewFolder is in front of the form");
        EXPECT_EQ(event("type", "dxName", "x"), KESTEDIT_UNKNOWN_NAME);
        EXPECT_NE(got("dlgNewFolder.Caption"), "\"\"");
        for (const char* name : {"old", "new"}) {
            EXPECT_EQ(event("type", "dxTextEdit1", name), KESTEDIT_OK);
            EXPECT_EQ(event("click", "cmdCreate"), KESTEDIT_OK);
        }
        EXPECT_EQ(event("close"), KESTEDIT_REFUSED);
        EXPECT_STREQ(kestEdit_lastError(), "the dialog has closed");
    };
    std::filesystem::create_directory(folder_.path() / "old");
    show([&] {
        EXPECT_EQ(event("button", "dxSource", "0"), KESTEDIT_OK);
        EXPECT_EQ(got("dxSource.EditValue"), '"' + path + '"');
        EXPECT_EQ(event("button", "dxSource", "1"), KESTEDIT_OK);
        EXPECT_EQ(got("dxSource.EditValue"), '"' + path + "/new\"");
        EXPECT_EQ(event("check", "chkExecDo", "1"), KESTEDIT_OK);
        EXPECT_EQ(event("button", "dxExecPath", "0"), KESTEDIT_OK);
        EXPECT_EQ(got("dxExecPath.EditValue"), "\"/bin/true\"");
    });
    EXPECT_TRUE(heard_.starts_with("Select source folder:;Select program")) << heard_;
    EXPECT_TRUE(std::filesystem::is_directory(folder_.path() / "new"));
}

// A host in C++ may throw out of its callbacks: it gets a code, and the next run finds the editor unharmed.
TEST_F(CInterfaceTest, NothingThatACallbackThrowsOrTheSystemRefusesComesOut) {
    show([] { throw std::bad_alloc(); }, KESTEDIT_SYSTEM);
    show([] { throw 42; }, KESTEDIT_INTERNAL);
    hear_ = [](const std::string&) { throw std::runtime_error("out of an event"); };
    show([this] { save(); }, KESTEDIT_INTERNAL);
    EXPECT_STREQ(kestEdit_lastError(), "out of an event");
    kestEdit_setText(editor_, "JobDir", (folder_.path() / "missing").c_str());
    show([this] {
        save(KESTEDIT_SYSTEM);
        EXPECT_NE(std::string(kestEdit_lastError()).find("missing/"), std::string::npos) << kestEdit_lastError();
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_OK) << "the form has stayed open";
    });
}

}  // namespace

}  // namespace kestedit::test
