// The class as a host in C++ meets it: which event follows a run, and what it carries.
#include "component/clsEdit.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit::test {

namespace {

class ClassTest : public testing::Test, public Surroundings, public ModalRun {
  protected:
    ClassTest() {
        editor.JobDir(values.JobDir);
        editor.JobExtension(values.JobExtension);
        editor.SearchJobs = [this] { heard += "SearchJobs;"; };
        editor.SetNewValues = [this](std::string& text) {
            heard += "SetNewValues" + text + ";";
            text = " by the host";
        };
    }
    void show(const char* mode, std::function<void(frmEdit&)> user) {
        act = std::move(user);
        editor.Mode(mode);
        editor.Show(4);
    }
    void run(frmEdit& form) override { act(form); }

    clsEdit editor{platform, *this};
    std::function<void(frmEdit&)> act;
    std::string heard;
};

TEST_F(ClassTest, TheTextOfTheEventIsEmptyWhateverAHostWroteIntoItBefore) {
    for (int i = 0; i < 2; ++i)
        show("Edit", [](frmEdit& form) { form.onCloseBox(); });
    EXPECT_EQ(heard, "SetNewValues;SetNewValues;");
}

TEST_F(ClassTest, ACancelBehindASaveDoesNotSilenceTheEvent) {
    for (const char* name : {"a", "b"}) {
        show("New", [name](frmEdit& form) {
            form.onTextTyped(form.dxName, name);
            form.onCommand(form.cmdSave);
            EXPECT_THROW(form.onCommand(form.cmdCancel), EventRefused);
        });
    }
    EXPECT_EQ(heard, "SearchJobs;SearchJobs;");
}

}  // namespace

}  // namespace kestedit::test
