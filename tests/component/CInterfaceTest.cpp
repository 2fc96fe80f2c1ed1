// The C interface as a host in another language meets it: a whole run, and everything a host can get wrong.
#include <array>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include "component/kestEdit.h"
#include "tests/platform/TemporaryFolder.h"

namespace kestedit::test {

namespace {

/// An editor by its handle, released with the test. Its driver runs `script`, its questions go to `answer`.
class CInterfaceTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(kestEdit_create("kestEdit.clsEdit", &editor_), KESTEDIT_OK) << kestEdit_lastError();
        ready(editor_);
    }
    void TearDown() override { kestEdit_release(editor_); }

    void ready(kestEdit_Handle editor) {
        for (const auto& [property, text] : std::vector<std::array<std::string, 2>>{
                 {"Mode", "New"},
                 {"AppTitle", "Host"},
                 {"JobDir", folder_.path().string()},
                 {"JobExtension", ".job"},
                 {"INIFile", (folder_.path() / "program.ini").string()},
                 {"Language", KESTEDIT_LANG_DIR "/english.lng"},
             }) {
            ASSERT_EQ(kestEdit_setText(editor, property.c_str(), text.c_str()), KESTEDIT_OK) << kestEdit_lastError();
        }
        kestEdit_setDriver(editor, &runScript, &answerBox, this);
        kestEdit_onSearchJobs(editor, &heardSearchJobs, this);
        kestEdit_onSetNewValues(editor, &heardSetNewValues, this);
    }

    kestEdit_Result event(const char* verb, const char* control = nullptr, const char* text = nullptr) const {
        return kestEdit_event(editor_, verb, control, text);
    }

    /// Names the job and saves it.
    void fillAndSave(const char* name) const {
        EXPECT_EQ(event("type", "dxName", name), KESTEDIT_OK) << kestEdit_lastError();
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_OK) << kestEdit_lastError();
    }

    TemporaryFolder folder_;
    kestEdit_Handle editor_ = 0;
    std::function<void()> script_ = [] {};
    std::function<int(std::string)> answer_ = [](const std::string&) { return KESTEDIT_ANSWER_OK; };
    std::function<void()> inEvent_ = [] {};
    std::vector<std::string> heard_;

  private:
    static CInterfaceTest& self(void* user) { return *static_cast<CInterfaceTest*>(user); }
    static void runScript(kestEdit_Handle, void* user) { self(user).script_(); }
    static std::int32_t answerBox(const char*, const char* text, std::int32_t, void* user) {
        return self(user).answer_(text);
    }
    static void heardSearchJobs(void* user) {
        self(user).heard_.emplace_back("SearchJobs");
        self(user).inEvent_();
    }
    static void heardSetNewValues(const char* text, void* user) {
        self(user).heard_.push_back("SetNewValues \"" + std::string(text) + '"');
        self(user).inEvent_();
    }
};

using Texts = std::vector<std::string>;

TEST_F(CInterfaceTest, CreatesAndEditsAJobAndTellsTheHost) {
    script_ = [this] {
        EXPECT_EQ(event("choose", "optAction(1)"), KESTEDIT_OK) << kestEdit_lastError();
        fillAndSave("Night");
    };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(heard_, Texts{"SearchJobs"});
    const std::filesystem::path job = folder_.path() / "Night.job";
    EXPECT_NE(bytesOf(job).find("Action=1\r\n"), std::string::npos);

    kestEdit_setText(editor_, "Mode", "Edit");
    kestEdit_setText(editor_, "JobFile", job.c_str());
    script_ = [this] {
        EXPECT_EQ(event("check", "chkSubFolder", "1"), KESTEDIT_OK) << kestEdit_lastError();
        EXPECT_EQ(event("check", "chkFreeSpace", "1"), KESTEDIT_OK) << kestEdit_lastError();
        EXPECT_EQ(event("type", "dxFreeSpace", "4711"), KESTEDIT_OK) << kestEdit_lastError();
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_OK) << kestEdit_lastError();
    };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(heard_, (Texts{"SearchJobs", "SetNewValues \"\""}));
    EXPECT_NE(bytesOf(job).find("FreeSpaceVal=4711\r\n"), std::string::npos);

    // What a driver leaves open ends like a click on Cancel, which silences the object's events from then on.
    heard_.clear();
    script_ = [] {};
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK);
    script_ = [this] { EXPECT_EQ(event("close"), KESTEDIT_OK); };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK);
    EXPECT_EQ(heard_, Texts{});
    kestEdit_setDriver(editor_, nullptr, nullptr, nullptr);
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_NO_WINDOW);
}

TEST_F(CInterfaceTest, MessageBoxesGoToTheHost) {
    Texts questions;
    int word = KESTEDIT_ANSWER_NO;
    answer_ = [&](const std::string& text) {
        questions.push_back(text);
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_BUSY);
        return word;
    };
    script_ = [&] { fillAndSave("Night"); };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK);
    EXPECT_EQ(questions, Texts{});

    script_ = [&] {
        EXPECT_EQ(event("type", "dxName", "Night"), KESTEDIT_OK);
        word = KESTEDIT_ANSWER_RETRY;  // has no button in the question whether to overwrite
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_BAD_ARGUMENT);
        EXPECT_NE(std::string(kestEdit_lastError()).find("has no button for the answer 4"), std::string::npos);
        word = -1;
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_BAD_ARGUMENT);
        word = KESTEDIT_ANSWER_YES;
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_OK) << kestEdit_lastError();
    };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(questions.size(), 3U);
}

TEST_F(CInterfaceTest, WithoutAskEveryBoxGetsItsCarefulAnswer) {
    const std::filesystem::path job = folder_.file("Night.job", "[Job]\r\nName=old\r\n");
    const auto tryToOverwrite = [](kestEdit_Handle editor, void*) {
        EXPECT_EQ(kestEdit_event(editor, "type", "dxName", "Night"), KESTEDIT_OK);
        EXPECT_EQ(kestEdit_event(editor, "click", "cmdSave", nullptr), KESTEDIT_OK) << kestEdit_lastError();
    };
    kestEdit_setDriver(editor_, tryToOverwrite, nullptr, nullptr);
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(bytesOf(job), "[Job]\r\nName=old\r\n");
}

// ---- misuse

TEST_F(CInterfaceTest, HandlesThatAreNoEditorsAreRecognised) {
    kestEdit_Handle released = 0;
    ASSERT_EQ(kestEdit_create("kestEdit.clsEdit", &released), KESTEDIT_OK);
    ASSERT_EQ(kestEdit_release(released), KESTEDIT_OK);
    for (const kestEdit_Handle handle : {kestEdit_Handle{0}, released, ~kestEdit_Handle{0}}) {
        EXPECT_EQ(kestEdit_release(handle), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_setText(handle, "Mode", "New"), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_setInteger(handle, "View", 4), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_onSearchJobs(handle, nullptr, nullptr), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_onSetNewValues(handle, nullptr, nullptr), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_setDriver(handle, nullptr, nullptr, nullptr), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_show(handle, 4), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_event(handle, "close", nullptr, nullptr), KESTEDIT_BAD_HANDLE);
        EXPECT_EQ(kestEdit_lastError(), "no editor has the handle " + std::to_string(handle));
    }
    kestEdit_Handle next = 0;
    ASSERT_EQ(kestEdit_create("kestEdit.clsEdit", &next), KESTEDIT_OK);
    EXPECT_NE(next, released);
    EXPECT_EQ(kestEdit_release(next), KESTEDIT_OK);
}

TEST_F(CInterfaceTest, NamesTypesAndPointersAreChecked) {
    kestEdit_Handle handle = 42;
    EXPECT_EQ(kestEdit_create("kestEdit.frmEdit", &handle), KESTEDIT_UNKNOWN_NAME);
    EXPECT_EQ(handle, 0U);
    EXPECT_STREQ(kestEdit_lastError(), "no class is named \"kestEdit.frmEdit\"");
    EXPECT_EQ(kestEdit_create(nullptr, &handle), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_create("kestEdit.clsEdit", nullptr), KESTEDIT_BAD_ARGUMENT);

    EXPECT_EQ(kestEdit_setText(editor_, "Colour", "red"), KESTEDIT_UNKNOWN_NAME);
    EXPECT_EQ(kestEdit_setText(editor_, nullptr, "New"), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_setText(editor_, "Mode", nullptr), KESTEDIT_BAD_ARGUMENT);
    EXPECT_STREQ(kestEdit_lastError(), "the text is null");
    EXPECT_EQ(kestEdit_setText(editor_, "View", "4"), KESTEDIT_WRONG_TYPE);
    EXPECT_STREQ(kestEdit_lastError(), "the property View takes an integer");
    EXPECT_EQ(kestEdit_setInteger(editor_, "JobDir", 4), KESTEDIT_WRONG_TYPE);
    EXPECT_EQ(kestEdit_setInteger(editor_, "View", 4), KESTEDIT_OK);
    EXPECT_EQ(kestEdit_setInteger(editor_, "View", 32768), KESTEDIT_BAD_ARGUMENT);
    EXPECT_EQ(kestEdit_show(editor_, -32769), KESTEDIT_BAD_ARGUMENT);
    EXPECT_STREQ(kestEdit_lastError(), "-32769 is no 16-bit integer");
}

TEST_F(CInterfaceTest, EventsThatMakeNoSenseAreAnsweredAndTheFormStaysOpen) {
    script_ = [this] {
        EXPECT_EQ(event(nullptr), KESTEDIT_BAD_ARGUMENT);
        EXPECT_EQ(event("wish", "dxName", "x"), KESTEDIT_UNKNOWN_NAME);
        EXPECT_EQ(event("type", "dxNobody", "x"), KESTEDIT_UNKNOWN_NAME);
        EXPECT_EQ(event("click"), KESTEDIT_UNKNOWN_NAME);
        EXPECT_EQ(event("type", "dxMonDelay", "soon"), KESTEDIT_BAD_ARGUMENT);
        EXPECT_EQ(event("check", "chkSubFolder", "3"), KESTEDIT_BAD_ARGUMENT);
        EXPECT_EQ(event("check", "dxName", "1"), KESTEDIT_REFUSED);
        EXPECT_EQ(event("pick", "dxZipGrade", "no such level"), KESTEDIT_REFUSED);
        EXPECT_EQ(event("type", "dxName", "\xC3\x28 \xFF"), KESTEDIT_REFUSED);  // not UTF-8
        fillAndSave("Night");
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_REFUSED);
        EXPECT_STREQ(kestEdit_lastError(), "the form has closed");
    };
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(heard_, Texts{"SearchJobs"});
    EXPECT_EQ(event("close"), KESTEDIT_REFUSED);
}

TEST_F(CInterfaceTest, CallsFromInsideARunOrAnEventAreAnswered) {
    kestEdit_Handle other = 0;
    ASSERT_EQ(kestEdit_create("kestEdit.clsEdit", &other), KESTEDIT_OK);
    ready(other);
    const auto misbehave = [&] {
        EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_release(editor_), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_setText(editor_, "Mode", "Edit"), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_onSearchJobs(editor_, nullptr, nullptr), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_setDriver(editor_, nullptr, nullptr, nullptr), KESTEDIT_BUSY);
        EXPECT_EQ(kestEdit_show(other, 4), KESTEDIT_EDITOR_OPEN);
        EXPECT_STREQ(kestEdit_lastError(), "an editor is open already");
        EXPECT_EQ(kestEdit_event(other, "close", nullptr, nullptr), KESTEDIT_REFUSED);
    };
    script_ = [&] {
        misbehave();
        fillAndSave("Night");
    };
    inEvent_ = misbehave;
    ASSERT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
    EXPECT_EQ(heard_, Texts{"SearchJobs"});
    EXPECT_EQ(kestEdit_release(other), KESTEDIT_OK);
}

TEST_F(CInterfaceTest, OtherThreadsAreAnswered) {
    script_ = [this] {
        std::thread([this] {
            EXPECT_EQ(kestEdit_setText(editor_, "Mode", "Edit"), KESTEDIT_BUSY);
            EXPECT_EQ(event("close"), KESTEDIT_REFUSED);
            EXPECT_EQ(kestEdit_release(editor_), KESTEDIT_BUSY);
        }).join();
        EXPECT_STREQ(kestEdit_lastError(), "");  // each thread has its own
    };
    std::thread([this] { EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError(); }).join();
}

// A host in C++ may throw out of its callbacks: it gets a code, and the next run finds the editor unharmed.
TEST_F(CInterfaceTest, NothingThatACallbackThrowsOrTheSystemRefusesComesOut) {
    script_ = [] { throw std::bad_alloc(); };
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_SYSTEM);
    script_ = [] { throw 42; };
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_INTERNAL);
    script_ = [this] { fillAndSave("Night"); };
    inEvent_ = [] { throw std::runtime_error("out of an event"); };
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_INTERNAL);
    EXPECT_STREQ(kestEdit_lastError(), "out of an event");
    inEvent_ = [] {};
    kestEdit_setText(editor_, "JobDir", (folder_.path() / "missing").c_str());
    script_ = [this] {
        EXPECT_EQ(event("type", "dxName", "Night"), KESTEDIT_OK);
        EXPECT_EQ(event("click", "cmdSave"), KESTEDIT_SYSTEM);
        EXPECT_NE(std::string(kestEdit_lastError()).find("missing/"), std::string::npos) << kestEdit_lastError();
        EXPECT_EQ(event("click", "cmdCancel"), KESTEDIT_OK) << "the form has stayed open";
    };
    EXPECT_EQ(kestEdit_show(editor_, 4), KESTEDIT_OK) << kestEdit_lastError();
}

}  // namespace

}  // namespace kestedit::test
