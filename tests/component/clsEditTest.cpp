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
    std::string show(const std::string& mode, const std::function<void(frmEdit&)>& events, std::int16_t view = 4) {
        raised.clear();
        component.Mode(mode);
        component.JobFile(jobFile("old").string());
        driver.events = events;
        component.Show(view);
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
    clsEdit another(platform, driver);
    bool searched = false;
    another.SearchJobs = [&] { searched = true; };
    another.Mode("New");
    driver.events = close;
    another.Show(4);
    EXPECT_TRUE(searched);
}

TEST_F(ClsEdit, ViewLevelIsTheDecimalTextOfTheArgument) {
    for (const auto& [view, nodes] : {std::pair{4, 13}, {9, 12}, {15, 11}, {23, 10}, {5, 0}, {-4, 0}}) {
        show(
            "New",
            [&](frmEdit& form) {
                EXPECT_EQ(form.ViewLevel, std::to_string(view));
                EXPECT_EQ(form.Navigation.Nodes.size(), static_cast<std::size_t>(nodes));
            },
            static_cast<std::int16_t>(view));
    }
}

TEST_F(ClsEdit, EventsMayBeLeftUnhandled) {
    component.SearchJobs = nullptr;
    component.SetNewValues = nullptr;
    EXPECT_EQ(show("New", close), "");
    EXPECT_EQ(show("Edit", close), "");
}

TEST_F(ClsEdit, ASecondShowInsideOfOneIsRefused) {
    clsEdit second(platform, driver);
    EXPECT_EQ(show("New",
                   [&](frmEdit& form) {
                       EXPECT_THROW(component.Show(4), EditorOpen);
                       EXPECT_THROW(second.Show(4), EditorOpen);
                       form.onCloseBox();
                   }),
              "SearchJobs;");
    component.SearchJobs = [&] { EXPECT_THROW(second.Show(4), EditorOpen); };
    driver.events = close;
    component.Show(4);
    EXPECT_NO_THROW(second.Show(4));
}

TEST_F(ClsEdit, AFailureComesOutAndLeavesTheClassUsable) {
    component.JobDir((jobs / "missing").string());
    EXPECT_THROW(show("New", saveAs("a")), std::system_error);
    EXPECT_EQ(raised, "");
    component.JobDir(jobs.string());
    EXPECT_EQ(show("New", saveAs("a")), "SearchJobs;");
}

}  // namespace
}  // namespace kestedit
