#include <regex>

#include "tests/host/ProgramFixture.h"

namespace kestedit {

namespace {

using namespace std::string_literals;
using ScriptTest = test::ProgramTest;

TEST_F(ScriptTest, TheDocumentedExamplePrintsWhatItSays) {
    const std::string document = test::bytesOf(KESTEDIT_DOCS "/script.md");
    std::smatch example;
    ASSERT_TRUE(
        std::regex_search(document, example, std::regex("\n\n((?:    (?!kestedit).*\n)+)\nprints\n\n((?:    .*\n)+)")));
    const auto withoutMargin = [](const std::string& text) {
        return std::regex_replace(text, std::regex("    (.+\n)"), "$1");
    };
    const auto result = script("new", withoutMargin(example[1]));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, withoutMargin(example[2]));
}

TEST_F(ScriptTest, SamplesMakeTheJobsThatTheyDescribe) {
    const auto sample = [](const std::string& name) { return " '" KESTEDIT_DOCS "/../samples/" + name + ".script'"; };
    for (const std::string name : {"create", "compress", "sync", "monitor"}) {
        const auto result = kestedit("script --job-dir . new" + sample(name));
        EXPECT_EQ(result.code, 0) << result.err;
        EXPECT_TRUE(result.out.ends_with("event SearchJobs\n")) << name << "\n" << result.out;
    }
    const auto renamed = kestedit("script --view 9 edit Notes.job" + sample("rename"));
    EXPECT_EQ(renamed.code, 0) << renamed.err;
    const auto holds = [this](const std::string& job, std::initializer_list<const char*> lines) {
        const std::string bytes = test::bytesOf(folder.path() / (job + ".job"));
        for (const std::string line : lines)
            EXPECT_NE(bytes.find("\r\n" + line + "\r\n"), std::string::npos) << job << " " << line;
    };
    holds("Notes, half-hourly", {"Action=3", "Ext=txt, md", "Interval=30"});
    holds("Documents, packed", {"Action=3", "ZipAll=1", "ZipPwd=correct horse", "Interval=1440"});
    holds("Laptop and server", {"Action=5", "SyncStart=1", "SyncExist=2", "IntervalType=1", "IntervalTime=18:30:00"});
    holds("Incoming scans", {"Action=0", "IntervalType=2", "ExecDo=1", "Execution=1", "ExecMaxSec=300"});
}

TEST_F(ScriptTest, PrintsEveryFormOfValue) {
    const auto result =
        script("new",
               "type dxComment \"a\\n\\\"b\\\"\"\nprint dxComment.EditValue\nprint dxDate.EditValue\n"
               "print dxDateTime.EditValue\nprint dxHours.EditValue\nprint dxSize.EditValue\n"
               "print cmdSave.Enabled\nprint optAction.State\nprint dxZipGrade.Items\n"
               "print frmEdit.Caption\nprint frmEdit.PageNodeIndex(11)\nprint frmEdit.PageNodeIndex(99)\n"
               "print frmEdit.InvalidExtChars\nprint frmEdit.FocusedControl\nframes\n");
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(
        result.out,
        "dxComment.EditValue = \"a\\r\\n\\\"b\\\"\"\ndxDate.EditValue = 2026-11-21\n"
        "dxDateTime.EditValue = 14:05:00\ndxHours.EditValue = 1\ndxSize.EditValue = Empty\n"
        "cmdSave.Enabled = True\noptAction.State = 1\ndxZipGrade.Items = [\"None\", \"Low\", \"Normal\", \"High\"]\n"
        "frmEdit.Caption = \"kestEdit - New job\"\nfrmEdit.PageNodeIndex(11) = 11\nfrmEdit.PageNodeIndex(99) = Empty\n"
        "frmEdit.InvalidExtChars = False\nfrmEdit.FocusedControl = \"dxName\"\nfraComment\nevent none\n");
}

TEST_F(ScriptTest, ListsNodesAndTabsInTheirOrder) {
    const auto nodes = script("--view 9 new", "key down\nnodes\n");
    EXPECT_TRUE(nodes.out.starts_with("node 0 \"Job name and notes\" \"\"\nnode 1 \"Mode\" \"2\" *\nnode 2 \"Source"));
    const auto tabs = script("new", "tabs\n");
    EXPECT_TRUE(tabs.out.starts_with("dxTreeList1\ndxName\ndxComment\n"));
    EXPECT_NE(tabs.out.find("cmdPrevious\ncmdNext\ncmdCancel\ncmdSave\nevent none\n"), std::string::npos);
    const auto dump = script("new", "dump\n");
    EXPECT_NE(dump.out.find("\noptAction(3).State = 0\noptAction(3).Enabled = True\n"), std::string::npos);
}

TEST_F(ScriptTest, EndsAtTheFirstLineThatFails) {
    const std::pair<const char*, const char*> cases[] = {
        {"bogus", "unknown event \"bogus\""},
        {"type dxFoo x", "no control named dxFoo"},
        {"choose optAction 6", "no control named optAction(6)"},
        {"choose dxName 0", "no control named dxName(0)"},
        {"print dxName.Size", "dxName has no property Size"},
        {"print frmEdit.TextCatalogue(85)", "frmEdit has no property TextCatalogue(85)"},
        {"print frmEdit.Caption(0)", "frmEdit has no property Caption(0)"},
        {"print dlgNewFolder.Caption", "dlgNewFolder is not open"},
        {"button dxSource 1\nnode 1", "dlgNewFolder is in front of the form"},
    };
    for (const auto& [lines, reason] : cases) {
        const auto result = script("new", std::string("type dxName Night\nprint dxName.EditValue\ntype dxSource .\n") +
                                              lines + "\nclick cmdSave\n");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "dxName.EditValue = \"Night\"\nevent none\n");
        EXPECT_TRUE(result.err.starts_with("kestedit: home/script:") && result.err.ends_with(reason + "\n"s))
            << result.err;
    }
    for (const std::string line :
         {"click chkPreview", "type chkPreview x", "node 13", "check dxName 1", "pick dxZipGrade x"}) {
        EXPECT_EQ(script("new", "\n" + line).err.find("kestedit: home/script:2: "), 0U) << line;
    }
    EXPECT_EQ(folder.names(), std::vector<std::string>{"home"});
}

TEST_F(ScriptTest, OnlyQueriesWorkAfterTheFormHasClosed) {
    const auto result = script("new", "type dxName Night\nclick cmdSave\nprint frmEdit.JobFile\nclick cmdSave\n");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "frmEdit.JobFile = \"./Night.job\"\nevent SearchJobs\n");
    EXPECT_EQ(result.err, "kestedit: home/script:4: the form has closed\n");
}

TEST_F(ScriptTest, TheEventTellsHowTheFormWasLeft) {
    ASSERT_EQ(script("new", "type dxName Night\nclick cmdSave\n").code, 0);
    EXPECT_EQ(script("edit Night.job", "").out, "event none\n");
    EXPECT_EQ(script("edit Night.job", "click cmdCancel\n").out, "event none\n");
    EXPECT_EQ(script("edit Night.job", "close\n").out, "event SetNewValues \"\"\n");
    EXPECT_EQ(script("edit Night.job", "click cmdSave\n").out, "event SetNewValues \"\"\n");
    EXPECT_EQ(script("edit Night.job", "type dxName Day\nclick cmdSave\n").out, "event SearchJobs\n");
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"Day.job", "home"}));
}

TEST_F(ScriptTest, AnswersAtTheHeadServeTheLoadingForm) {
    static_cast<void>(folder.file("a.job", "[Job]\nName=a\nIntervalDate=2026/11/21\n"));
    const auto unanswered = script("edit a.job", "timer\nanswer ok\n");
    EXPECT_EQ(unanswered.code, 1);
    EXPECT_EQ(unanswered.out, "event none\n");
    EXPECT_TRUE(
        unanswered.err.starts_with("kestedit: home/script: no answer is queued for message \"Information\" \"The da"));
    const auto answered = script("edit a.job", "answer ok\nprint frmEdit.DateFormatChanged\n");
    EXPECT_EQ(answered.code, 0) << answered.err;
    EXPECT_NE(answered.out.find("[Ok] -> Ok\nfrmEdit.DateFormatChanged = True\n"), std::string::npos);
}

TEST_F(ScriptTest, BoxesAndChoosersTakeTheirOwnKindOfAnswer) {
    const auto chosen = script("new", "folder \"/a b\"\nbutton dxSource 0\nbutton dxSource 0\n");
    EXPECT_EQ(chosen.out,
              "folder \"Select source folder:\" \"\" 69 -> \"/a b\"\n"
              "folder \"Select source folder:\" \"/a b\" 69 -> \"\"\nevent none\n");
    const std::pair<const char*, const char*> cases[] = {
        {"file /bin/true\nbutton dxSource 0\n",
         "3: the answer \"/bin/true\" is queued for another chooser than folder \"Select source folder:\" \".\" 69\n"},
        {"answer cancel\nbutton dxSource 1\ntype dxTextEdit1 home\nclick cmdCreate\n",
         "5: the answer Cancel is none of message \"kestEdit\" \"Folder already exists.\" [Ok]\n"},
        {"button dxSource 1\ntype dxTextEdit1 home\nclick cmdCreate\n",
         "4: no answer is queued for message \"kestEdit\" \"Folder already exists.\" [Ok]\n"},
    };
    for (const auto& [lines, reason] : cases)
        EXPECT_EQ(script("new", "type dxSource .\n"s + lines).err, "kestedit: home/script:"s + reason);
}

TEST_F(ScriptTest, TextsOfTheProgramStandInTheirPageWhateverTheJobsHave) {
    environment = "LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8";
    const auto result =
        script("--code-page 65001 new", "print frmEdit.TextCatalogue(40)\ntype dxName Łódź\nclick cmdSave\n");
    EXPECT_EQ(result.out, "frmEdit.TextCatalogue(40) = \"Überwachung\"\nevent SearchJobs\n");
    EXPECT_NE(test::bytesOf(folder.path() / "Łódź.job").find("Name=Łódź"), std::string::npos);
}

TEST_F(ScriptTest, EventsGoToTheDialogInFront) {
    const std::string open = "type dxSource .\nbutton dxSource 1\n";
    const auto created =
        script("new", open +
                          "print dlgNewFolder.Caption\nprint cmdCancel.TabIndex\nprint cmdSave.Visible\n"
                          "type dxTextEdit1 sub\nclick cmdCreate\nprint dxSource.EditValue\n");
    EXPECT_EQ(created.code, 0) << created.err;
    EXPECT_NE(created.out.find("dxSource.EditValue = \"./sub\"\n"), std::string::npos) << created.out;
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "sub"));
    EXPECT_EQ(script("new", open).code, 0);
    EXPECT_EQ(script("new", open + "close\nprint frmEdit.SelectedAction\n").out,
              "frmEdit.SelectedAction = 0\nevent none\n");
}

}  // namespace

}  // namespace kestedit
