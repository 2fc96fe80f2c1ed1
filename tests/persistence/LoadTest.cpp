#include "persistence/modGetValues.h"
#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

using LoadTest = JobTest;

TEST_F(LoadTest, AbsentKeysLeaveWhatTheControlsAccept) {
    put("[Job]\n");
    FilledForm form;
    form.optAttrSetDest.select(1);
    load(form);
    EXPECT_EQ(form.optAction.selected(), 0);
    EXPECT_EQ(form.optExist.selected(), 0);
    EXPECT_FALSE(form.optAttrSetDest.selected());
    EXPECT_EQ(form.dxSource.EditValue, Value{""});
    EXPECT_EQ(form.dxMonDelay.number(), 5);
    EXPECT_EQ(form.dxHours.number(), 1);
    EXPECT_EQ(form.CompressionLevel, 3);
    EXPECT_EQ(form.dxDateTime.EditValue, Value{});
    EXPECT_EQ(form.dxDateFrom.date(), dateOf(2026, 11, 20));
    EXPECT_EQ(form.dxDate.date(), now.date);
    EXPECT_FALSE(form.DateFormatChanged);
}

TEST_F(LoadTest, TheActionIsLoadedApart) {
    put("[Job]\nAction=3\nName=Nightly\nZipDelDeComp=1\nZipDelDeCompBin=1\n");
    FilledForm form;
    GetValues(form, *jobs.read(file), "", dates, now.date);
    EXPECT_FALSE(form.optAction.selected());
    EXPECT_EQ(form.LoadedName, "Nightly");
    EXPECT_EQ(form.chkZipDelDeCompBin.State, 0);
    form.dxName.EditValue = "";
    GetAction(form, *jobs.read(file));
    EXPECT_EQ(form.optAction.selected(), 3);
    EXPECT_EQ(form.dxName.text(), "");
}

TEST_F(LoadTest, ValuesOutsideTheirRangeStandForTheFirst) {
    put("[Job]\nComment=a^b" + std::string(300, 'c') +
        "\nSubFolder=7\nRunOnce=-1\nExist=5\nAction=-2\nPickRenamer=4\nIntWeekDay=0\nMonWatch=5\nEFSelect=7\n"
        "ZipGrade=9\nMonDelay=\nExecMaxSec=1e3\nFileAgeDiff=99999999999999999999\nInterval=4565\nIntervalTime=noon\n");
    FilledForm form;
    load(form);
    EXPECT_EQ(form.dxComment.text(), "a\r\nb" + std::string(252, 'c')) << "cut, and with its line break";
    for (const EditorControl* check : {&form.chkSubFolder, &form.chkRunOnce})
        EXPECT_EQ(check->State, 0) << check->Name();
    EXPECT_EQ(form.optExist.selected(), 0);
    EXPECT_EQ(form.optAction.selected(), 0);
    for (const EditorControl* list : {&form.dxPickRenamer, &form.dxIntWeekDay, &form.dxMonWatch, &form.dxZipGrade})
        EXPECT_EQ(list->text(), "") << list->Name();
    EXPECT_EQ(form.dxPickExistSelecter.text(), "entry 7");
    EXPECT_EQ(form.CompressionLevel, 9);
    EXPECT_EQ(form.dxMonDelay.EditValue, Value{});
    EXPECT_EQ(form.dxExecMaxSec.number(), 60);
    EXPECT_EQ(form.dxAge.number(), 1);
    EXPECT_EQ(form.dxDateTime.EditValue, Value{"noon"});
}

}  // namespace

}  // namespace kestedit
