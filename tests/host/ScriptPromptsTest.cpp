#include <gtest/gtest.h>
#include <sstream>
#include <stdexcept>

#include "host/ScriptPrompts.h"

namespace kestedit {

namespace {

struct ScriptPromptsTest : testing::Test {
    std::ostringstream out;
    ScriptPrompts prompts{out};

    /// What the box throws, or an empty text.
    std::string failureOf(const MessageBox& box) {
        try {
            prompts.showMessage(box);
            return "";
        } catch (const std::runtime_error& failure) {
            return failure.what();
        }
    }
};

TEST_F(ScriptPromptsTest, PrintsEachBoxWithItsAnswer) {
    prompts.queueAnswer(Answer::ok);
    prompts.queueAnswer(Answer::no);
    prompts.queueAnswer(Answer::proceed);
    EXPECT_EQ(prompts.showMessage({"T", "one\r\n\"two\"", Buttons::ok}), Answer::ok);
    EXPECT_EQ(prompts.showMessage({"T", "", Buttons::yesNo}), Answer::no);
    EXPECT_EQ(prompts.showMessage({"", "x", Buttons::cancelRetryContinue}), Answer::proceed);
    EXPECT_EQ(out.str(),
              "message \"T\" \"one\\r\\n\\\"two\\\"\" [Ok] -> Ok\n"
              "message \"T\" \"\" [Yes No] -> No\n"
              "message \"\" \"x\" [Cancel Retry Continue] -> Continue\n");
}

TEST_F(ScriptPromptsTest, ABoxNeedsAnAnswerThatItOffers) {
    EXPECT_EQ(failureOf({"T", "x", Buttons::ok}), "no answer is queued for message \"T\" \"x\" [Ok]");
    prompts.queueAnswer(Answer::cancel);
    EXPECT_EQ(failureOf({"T", "x", Buttons::yesNo}), "the answer Cancel is none of message \"T\" \"x\" [Yes No]");
    EXPECT_EQ(out.str(), "");
}

TEST_F(ScriptPromptsTest, ChoosersTakeTheirOwnKindOfAnswerOrAreCancelled) {
    prompts.queueFolder("/a b");
    prompts.queueFile("/bin/true");
    prompts.queueCancel();
    EXPECT_EQ(prompts.chooseFolder({"F:", "/x", std::nullopt, 69, ""}), "/a b");
    EXPECT_EQ(prompts.chooseFile({"P", "All|*"}), "/bin/true");
    EXPECT_EQ(prompts.chooseFile({"P", "All|*"}), std::nullopt);
    EXPECT_EQ(prompts.chooseFolder({"F:", "", std::nullopt, 69, ""}), std::nullopt);
    EXPECT_EQ(out.str(),
              "folder \"F:\" \"/x\" 69 -> \"/a b\"\n"
              "file \"P\" \"All|*\" -> \"/bin/true\"\n"
              "file \"P\" \"All|*\" -> \"\"\n"
              "folder \"F:\" \"\" 69 -> \"\"\n");

    prompts.queueFile("/bin/true");
    EXPECT_THROW(static_cast<void>(prompts.chooseFolder({"F:", "", std::nullopt, 69, ""})), std::runtime_error);
}

}  // namespace

}  // namespace kestedit
