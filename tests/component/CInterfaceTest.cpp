// The C interface as a host in another language meets it: a whole run, and everything a host can get wrong.
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

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
        const std::pair<const char*, std::string> properties[] = {
            {"Mode", "New"},
            {"AppTitle", "Host"},
            {"JobDir", folder_.path().string()},
            {"JobExtension", ".job"},
            {"INIFile", (folder_.path() / "program.ini").string()},
            {"Language", KESTEDIT_LANG_DIR "/english.lng"},
        };
        for (const auto& [name, text] : properties)
            EXPECT_EQ(kestEdit_setText(editor, name, text.c_str()), KESTEDIT_OK) << kestEdit_lastError();
        kestEdit_setDriver(editor, &run, &ask, this);
        kestEdit_onSearchJobs(editor, &searchJobs, this);
        kestEdit_onSetNewValues(editor, &setNewValues, this);
        return editor;
    }
    void show(std::function<void()> script, kestEdit_Result expected = KESTEDIT_OK) {
        script_ = std::move(script);
        EXPECT_EQ(kestEdit_show(editor_, 4), expected) << kestEdit_lastError();
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
    static void searchJobs(void* user) { self(user).hear_("SearchJobs"); }
    static void setNewValues(const char* text, void* user) { self(user).hear_("SetNewValues" + std::string(text)); }

    TemporaryFolder folder_;
    const std::filesystem::path job_ = folder_.path() / "Night.job";
    std::function<void()> script_;
    std::function<int(std::string)> answer_;
    std::function<void(std::string)> hear_ = [this](const std::string& event) { heard_ += event + ";"; };
    std::string heard_;
    const kestEdit_Handle editor_;
};

TEST_F(CInterfaceTest, EventsFillAJobOrAreAnswered) {
    const std::tuple<const char*, const char*, const char*, kestEdit_Result> events[] = {
        {"choose", "optAction(3)", nullptr, KESTEDIT_OK},
        {"pick", "dxZipGrade", "Low", KESTEDIT_OK},
        {"check", "chkFreeSpace", "1", KESTEDIT_OK},
        {"type", "dxFreeSpace", "4711", KESTEDIT_OK},
        {nullptr, nullptr, nullptr, KESTEDIT_BAD_ARGUMENT},
        {"wish", "dxName", "x", KESTEDIT_UNKNOWN_NAME},
        {"type", "dxNobody", "x", KESTEDIT_UNKNOWN_NAME},
        {"click", nullptr, nullptr, KESTEDIT_UNKNOWN_NAME},
        {"type", "dxFreeSpace", "5x", KESTEDIT_BAD_ARGUMENT},
        {"check", "chkFreeSpace", "3", KESTEDIT_BAD_ARGUMENT},
        {"check", "dxName", "1", KESTEDIT_REFUSED},
        {"type", "dxName", "\xC3\x28 \xFF", KESTEDIT_REFUSED},  // not UTF-8
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
    /// Shows the job "old" in that mode, or a new one, and saves it under a name.
    const auto heardOf = [this](const char* mode, const std::function<void()>& script) {
        kestEdit_setText(editor_, "Mode", mode);
        kestEdit_setText(editor_, "JobFile", folder_.file("old.job", "[Job]\r\nName=old\r\n").c_str());
        show(script);
        return std::exchange(heard_, "");
    };
    const auto saveAs = [this](const char* name) { return [this, name] { save(KESTEDIT_OK, name); }; };
    const auto close = [this] { EXPECT_EQ(event("close"), KESTEDIT_OK); };
    EXPECT_EQ(heardOf("New", saveAs("a")), "SearchJobs;");
    EXPECT_EQ(heardOf("New", close), "SearchJobs;");
    EXPECT_EQ(heardOf("Edit", saveAs("old")), "SetNewValues;");
    EXPECT_EQ(heardOf("Edit", close), "SetNewValues;");
    EXPECT_EQ(heardOf("new", close), "SetNewValues;");
    EXPECT_EQ(heardOf("Edit", saveAs("renamed")), "SearchJobs;");
    answer_ = [](const std::string&) { return KESTEDIT_ANSWER_YES; };
    EXPECT_EQ(heardOf("Edit", saveAs("a")), "SearchJobs;") << "overwritten";
    EXPECT_EQ(heardOf("New", [] {}), "") << "what a driver leaves open is cancelled";
    EXPECT_EQ(heardOf("New", saveAs("b")), "") << "for good";
    EXPECT_EQ(folder_.names(), (std::vector<std::string>{"a.job", "b.job", "old.job", "renamed.job"}));
}

TEST_F(CInterfaceTest, MessageBoxesGetTheirCarefulAnswerOrGoToTheHost) {
    const std::string other = "[Job]\r\nName=old\r\n";
    static_cast<void>(folder_.file("Night.job", other));
    kestEdit_setDriver(editor_, &run, nullptr, this);
    show([this] { save(); });
    EXPECT_EQ(bytesOf(job_), other);

    kestEdit_setDriver(editor_, &run, &ask, this);
    int answer = KESTEDIT_ANSWER_RETRY;  // has no button in the question whether to overwrite
    answer_ = [&](const std::string& question) {
        EXPECT_TRUE(question.starts_with("Message: A job with this name already exists!\r\n")) << question;
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_BUSY);
        return answer;
    };
    show([&] {
        save(KESTEDIT_BAD_ARGUMENT);
        EXPECT_NE(std::string(kestEdit_lastError()).find("has no button for the answer 4"), std::string::npos);
        answer = -1;
        save(KESTEDIT_BAD_ARGUMENT);
        EXPECT_EQ(bytesOf(job_), other);
        answer = KESTEDIT_ANSWER_YES;
        save();
    });
    EXPECT_NE(bytesOf(job_), other);
}

TEST_F(CInterfaceTest, HandlesThatAreNoEditorsAreRecognised) {
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
}

TEST_F(CInterfaceTest, NamesTypesAndPointersAreChecked) {
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
    EXPECT_STREQ(kestEdit_lastError(), "the property View takes an integer");
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
