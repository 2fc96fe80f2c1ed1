// The class that hosts see: its events, its flags between runs, and that one editor is open at a time.
#include <stdexcept>

#include "component/clsEdit.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

/// Does with the form what a test says.
struct Driver final : ModalRun {
    void run(frmEdit& form) override { events(form); }
    void processPending() override { ++pending; }
    std::function<void(frmEdit&)> events;
    int pending = 0;
};

struct ClsEdit : testing::Test, test::Surroundings {
    ClsEdit() {
        component.SearchJobs = [this] { raised += "SearchJobs;"; };
        component.SetNewValues = [this](std::string& text) { raised += "SetNewValues(" + text + ");"; };
        component.AppTitle("kestEdit");
        component.JobDir(jobs.string());
        component.JobExtension(".job");
        component.INIFile(values.INIFile);
        component.Language(values.Language);
        putJob("old", "[Job]\nName=old\n");
    }
    /// Shows the form in that mode and tells the events of the run.
    std::string show(const std::string& mode, const std::function<void(frmEdit&)>& events) {
        raised.clear();
        component.Mode(mode);
        component.JobFile(jobFile("old").string());
        driver.events = events;
        component.Show(4);
        return raised;
    }

    Driver driver;
    clsEdit component{platform, driver};
    std::string raised;
};

void cancel(frmEdit& form) {
    form.onCommand(form.cmdCancel);
}
void close(frmEdit& form) {
    form.onCloseBox();
}
std::function<void(frmEdit&)> saveAs(const std::string& name) {
    return [name](frmEdit& form) {
        form.onTextTyped(form.dxName, name);
        form.onCommand(form.cmdSave);
        EXPECT_FALSE(form.isOpen());
    };
}

TEST_F(ClsEdit, RaisesOneEventForEachEndButCancel) {
    EXPECT_EQ(show("New", saveAs("a")), "SearchJobs;");
    EXPECT_EQ(show("New", close), "SearchJobs;");
    EXPECT_EQ(show("Edit", saveAs("old")), "SetNewValues();");
    EXPECT_EQ(show("Edit", close), "SetNewValues();");
    EXPECT_EQ(show("Edit", saveAs("renamed")), "SearchJobs;");
    EXPECT_EQ(show("new", close), "SetNewValues();");
    putJob("old", "[Job]\nName=old\n");
    prompts.answers = {Answer::yes};
    EXPECT_EQ(show("Edit", saveAs("a")), "SearchJobs;") << "overwritten";
    EXPECT_EQ(show("Edit", cancel), "");
    EXPECT_EQ(driver.pending, 8);
}

TEST_F(ClsEdit, OneCancelSilencesTheObjectForGood) {
    EXPECT_EQ(show("New", cancel), "");
    EXPECT_EQ(jobNames(), "old.job ");
    EXPECT_EQ(show("New", saveAs("a")), "");
    EXPECT_EQ(jobNames(), "a.job old.job ");
}

TEST_F(ClsEdit, ASecondShowInsideOfAnEventIsRefused) {
    clsEdit second(platform, driver);
    component.SearchJobs = [&] { EXPECT_THROW(second.Show(4), EditorOpen); };
    EXPECT_EQ(show("New", close), "");
    EXPECT_NO_THROW(second.Show(4)) << "whose own events nobody handles";
}

}  // namespace
}  // namespace kestedit
