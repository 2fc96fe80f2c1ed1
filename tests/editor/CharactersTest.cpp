// Texts that the code page of a job does not hold: the question, and the file that each answer leaves.
#include <algorithm>

#include "editor/CharacterNames.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

struct Characters : test::EditorTest {
    /// Opens the job "a", which holds these bytes.
    void load(std::string_view bytes) {
        putJob("a", bytes);
        edit("a");
    }
    void save() {
        click("cmdSave");
        EXPECT_FALSE(form().isOpen());
    }
    /// Why the form refuses the text; nothing when it takes it.
    std::string refusal(std::string_view name, std::string_view text) {
        try {
            type(name, text);
            return "";
        } catch (const EventRefused& refused) {
            return refused.what();
        }
    }
    [[nodiscard]] bool holds(std::string_view job, std::string_view bytes) const {
        return jobBytes(job).find(bytes) != std::string::npos;
    }
};

TEST_F(Characters, AreAskedAboutAgainAfterANoForTheNextEditingOnly) {
    create();
    prompts.answers = {Answer::no};
    EXPECT_NE(refusal("dxComment", "before 日"), "");
    EXPECT_TRUE(refusal("dxComment", "before α")
                    .ends_with("werden Sie wieder gefragt, ob der Auftrag alle Zeichen "
                               "enthalten soll."));
    type("dxComment", "before ü");
    EXPECT_EQ(prompts.messages.size(), 1U);
    form().onEditingFinished(form().dxComment);
    EXPECT_THROW(type("dxComment", "before α"), std::logic_error) << "nobody answers";
    EXPECT_EQ(form().dxComment.text(), "before ü");
    prompts.answers = {Answer::no, Answer::yes};
    EXPECT_NE(refusal("dxComment", "before α"), "");
    type("dxName", "ж");
    save();
}

TEST_F(Characters, AreNeverThoseOfAPasswordAndOnlyShownWhenTheyCanBe) {
    create();
    act(3);
    check("chkZipAll");
    prompts.answers = {Answer::no};
    EXPECT_EQ((refusal("dxZipPwd", "secret日") + refusal("dxZipPwd", "secret日")).find("日"), std::string::npos);
    EXPECT_EQ(CharacterNames("\u202E\n\xFF😀", [](auto) { return true; }), "U+202E, U+000A, 0xFF, U+1F600 😀");
}

TEST_F(Characters, ChosenOrCreatedAreAskedAboutLikeTypedOnes) {
    create();
    for (int i = 0; i < 2; ++i) {
        prompts.answers = {Answer::no};
        prompts.choices = {"/日"};
        EXPECT_THROW(button("dxSource", 0), EventRefused);
    }
    EXPECT_EQ(prompts.messages.size(), 2U) << "each choice is a question";
    type("dxSource", jobs.string());
    prompts.newFolder = [](dlgNewFolder& dialog) {
        for (int i = 0; i < 2; ++i)
            EXPECT_THROW(dialog.onTextTyped(dialog.dxTextEdit1, "日本"), EventRefused);
    };
    for (std::size_t opening = 1; opening <= 2; ++opening) {
        prompts.answers = {Answer::no};
        button("dxSource", 1);
        EXPECT_EQ(prompts.messages.size(), 2 + opening) << "once each time it opens";
    }
    type("dxSource", jobs.string());
    std::filesystem::create_directory(jobs / "ł");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(jobs / "ł");
    type("dxSource", "x");
    prompts.newFolder = [](dlgNewFolder& dialog) {
        dialog.onTextTyped(dialog.dxTextEdit1, "new");
        EXPECT_THROW(dialog.onCommand(dialog.cmdCreate), EventRefused) << "in a folder that does not fit";
    };
    prompts.answers = {Answer::no};
    button("dxSource", 1);
    std::filesystem::current_path(before);
}

TEST_F(Characters, OfForeignLinesAreConvertedWithTheJob) {
    const std::string foreign =
        "; M\xFCll \x80\n[Job]\nName=a\nComment=gr\xFC\xDF\x65\nKey of \xE4nother = "
        "\xD6l\n\n[Gr\xF6\xDF\x65]\nk=\x84x\x93\n";
    const std::string converted = "; Müll €\n[Job]\nName=a\nComment=grüße\nKey of änother = Öl\n";
    load(foreign);
    type("dxSource", "/Ümläut");
    save();
    EXPECT_TRUE(jobBytes("a").starts_with(foreign.substr(0, foreign.find("\n\n"))));
    EXPECT_TRUE(holds("a", "\nFrom=/\xDCml\xE4ut\n") && holds("a", "\n[Gr\xF6\xDF\x65]\nk=\x84x\x93\n"))
        << "stays in its page";
    edit("a");
    prompts.answers = {Answer::yes};
    type("dxDest", "/Łódź");
    save();
    EXPECT_TRUE(jobBytes("a").starts_with(converted)) << jobBytes("a");
    EXPECT_TRUE(holds("a", "\nFrom=/Ümläut\nTo=/Łódź\n") && holds("a", "\n[Größe]\nk=„x“\n")) << jobBytes("a");
    edit("a");
    EXPECT_EQ(form().dxSource.text() + form().dxComment.text(), "/Ümläutgrüße");
    type("dxName", "β");
    save();
    EXPECT_TRUE(holds("β", "Name=β\n") && holds("β", "\nFrom=/Ümläut\nTo=/Łódź\n")) << "a rename keeps to UTF-8";
    EXPECT_EQ(prompts.messages.size(), 1U);
}

TEST_F(Characters, OfAsciiStayAsTheyAreAndOneByteTellsOfThePage) {
    load("[Job]\r\nName=a\r\n");
    save();
    const std::string ascii = jobBytes("a");
    EXPECT_EQ(std::ranges::find_if(ascii, [](char byte) { return byte < 0; }), ascii.end());
    load("[Job]\r\nName=a\r\nFrom=/\xE4\r\nTo=/\xC3\xA4\r\n");
    EXPECT_EQ(form().dxDest.text(), "/Ã¤") << "not UTF-8 throughout";
}

TEST_F(Characters, OfLinesThatStayTellOfThePageAsWell) {
    const std::string own = "[Job]\r\nName=a\r\nFrom=/\xC3\xA4\r\n; gr\xFCn\r\n";
    load(own);
    EXPECT_EQ(form().dxSource.text(), "/Ã¤");
    type("dxComment", "x");
    save();
    EXPECT_TRUE(holds("a", "From=/\xC3\xA4\r\n")) << "one byte elsewhere tells";
    load("[Job]\r\nName=a\r\nFrom=/\xFC\r\n; \xC3\xA4\r\n");
    type("dxSource", "/x");
    prompts.answers = {Answer::yes};
    save();
    EXPECT_TRUE(prompts.answers.empty()) << "without that letter the comment would be read as another";
    EXPECT_TRUE(holds("a", "; Ã¤\r\n"));
}

TEST_F(Characters, CannotBeAddedToAJobWithBytesThatAreNone) {
    const std::string job = "[Job]\r\nName=a\r\n; a\x81\r\nFrom=/b\x8D\r\n";
    load(job);
    EXPECT_TRUE(refusal("dxDest", "/日").ends_with("denn in Zeile 3 stehen Bytes, die keine Zeichen sind."));
    EXPECT_EQ(refusal("dxSource", form().dxSource.text() + "ü"), "");
    save();
    EXPECT_TRUE(holds("a", "; a\x81\r\nFrom=/b\x8D\xFC\r\n")) << "they are kept";
    putJob("a", job);
    JobStore utf8{ini};
    utf8.writeAsUtf8();
    EXPECT_THROW(utf8.change({jobFile("a"), utf8.read(jobFile("a")), {}}).save({{JobLine{"Job", "To", "/日"}}}),
                 std::system_error);
    EXPECT_EQ(jobBytes("a"), job);
    EXPECT_THROW(JobStore{ini}.create(jobFile("b"), {{JobLine{"Job", "From", "/Ã¤"}}}), std::system_error)
        << "in page 1252 the bytes of another letter in UTF-8";
}

}  // namespace
}  // namespace kestedit
