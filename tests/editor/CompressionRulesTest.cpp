// Compression and extraction: the marks and boxes that follow more than one choice.
#include <gtest/gtest.h>

#include "editor/rules/compression.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::RuleForm;

TEST(CompressionRules, FolderStructureOfArchives) {
    struct Row {
        bool subfolders, all, disable;
        std::string_view inside, outside;  // v visible, e enabled; both start as they are after creation
    };
    constexpr Row rows[] = {{true, true, true, "v", "ve"},   {true, false, true, "ve", "v"},
                            {false, true, true, "ve", "v"},  {false, false, true, "ve", "v"},
                            {true, true, false, "ve", "ve"}, {true, false, false, "ve", "e"},
                            {false, true, false, "ve", "e"}, {false, false, false, "ve", "e"}};
    const auto look = [](const EditorControl& box) {
        return std::string(box.Visible ? "v" : "") + (box.Enabled ? "e" : "");
    };
    for (const Row& row : rows) {
        RuleForm form(row.disable);
        form.chkSubFolder.State = row.subfolders;
        form.chkZipAll.State = row.all;
        ApplyZipAll(form);
        EXPECT_EQ(look(form.chkZipIntStruct), row.inside) << (&row - rows);
        EXPECT_EQ(look(form.chkZipExtStruct), row.outside) << (&row - rows);
    }
}

TEST(CompressionRules, OnlyTheSwitchOfExtractionClearsItsCompanion) {
    for (const int state : {1, 2, 0}) {
        RuleForm form;
        form.chkZipDelComp.State = form.chkZipDelDeComp.State = state;
        form.chkZipDelCompBin.State = form.chkZipDelDeCompBin.State = 1;
        ApplyZipDelComp(form);
        ApplyZipDelDeComp(form);
        EXPECT_EQ(form.chkZipDelComp.State, state == 1 ? 1 : 0) << "grey becomes clear";
        EXPECT_EQ(form.chkZipDelCompBin.State, 1);
        EXPECT_EQ(form.chkZipDelDeCompBin.State, state == 1 ? 1 : 0);
    }
}

TEST(CompressionRules, FolderStructureMarksTheDestination) {
    struct Row {
        Action action;
        bool subfolders, structure;
        std::size_t exist, unzip;
        std::string_view mark;
    };
    constexpr Row rows[] = {
        {Action::copy, true, true, 0, 0, "8"},        {Action::move, true, false, 1, 0, "8"},
        {Action::move, true, false, 0, 1, ""},        {Action::copy, false, true, 1, 0, ""},
        {Action::extract, false, true, 0, 0, "8"},    {Action::extract, false, false, 1, 0, ""},
        {Action::extract, true, false, 0, 2, "8"},    {Action::remove, true, true, 1, 1, "left"},
        {Action::compress, true, true, 1, 1, "left"}, {Action::synchronise, true, true, 1, 1, "left"}};
    for (const Row& row : rows) {
        RuleForm form;
        form.act(row.action);
        form.chkSubFolder.State = row.subfolders;
        form.chkFStruct.State = row.structure;
        form.optExist.select(row.exist);
        form.optUnZip.select(row.unzip);
        SetNodeImage(form, Page::existing, "left");
        ApplyFolderStructure(form);
        EXPECT_EQ(form.mark(Page::existing), row.mark) << (&row - rows);
    }
}

TEST(CompressionRules, ExistingFilesMarkOfCompressAndExtract) {
    RuleForm form;
    const auto markAfter = [&](Action action, std::size_t exist, std::size_t unzip, int index) {
        form.act(action);
        form.optExist.select(exist);
        form.optUnZip.select(unzip);
        SetNodeImage(form, Page::existing, "left");
        ApplyUnZipExisting(form, index);
        return form.mark(Page::existing);
    };
    EXPECT_EQ(markAfter(Action::compress, 0, 1, 1), "") << "the other group decides";
    EXPECT_EQ(markAfter(Action::compress, 3, 0, 0), "8");
    EXPECT_EQ(markAfter(Action::compress, 0, 0, 0), "left") << "the item has been handled";
    EXPECT_EQ(markAfter(Action::extract, 0, 2, 2), "8");
    EXPECT_EQ(markAfter(Action::extract, 3, 0, 0), "");
    EXPECT_EQ(markAfter(Action::copy, 3, 2, 2), "left");
    EXPECT_EQ(markAfter(Action::extract, 0, 2, 2), "left") << "an item counts as handled under every action";
}

TEST(CompressionRules, LevelsOutsideTheListLeaveTheText) {
    for (const int level : {1, 2, 3, 4, 0, 5, -1}) {
        RuleForm form;
        for (const std::size_t entry : {6U, 7U, 8U, 9U})
            form.TextCatalogue[entry] = "level " + std::to_string(entry - 5);
        form.dxZipGrade.EditValue = "as before";
        form.CompressionLevel = level;
        FillCompressionLevels(form);
        FillCompressionLevels(form);
        EXPECT_EQ(form.dxZipGrade.Items.size(), 4U);
        EXPECT_EQ(form.dxZipGrade.text(), level >= 1 && level <= 4 ? "level " + std::to_string(level) : "as before");
    }
}

}  // namespace
}  // namespace kestedit
