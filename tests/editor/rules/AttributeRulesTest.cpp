#include <gtest/gtest.h>

#include "editor/rules/attributes.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::RuleForm;

const std::string sourceChoice = "lblSourceAttrib optAttrSetSource(0) optAttrSetSource(1)";
const std::string sourceBoxes = "chkAttrArchive(2) chkAttrReadOnly(2) chkAttrSystem(2) chkAttrHidden(2)";
const std::string destChoice = "lblDestAttrib optAttrSetDest(0) optAttrSetDest(1)";
const std::string destBoxes = "chkAttrArchive(1) chkAttrReadOnly(1) chkAttrSystem(1) chkAttrHidden(1)";
const std::string excluded =
    "chkAttrArchive(0) chkAttrReadOnly(0) chkAttrSystem(0) chkAttrHidden(0) chkAttrNormal chkAttrComp";

void applyBoth(FormModel& form) {
    ApplyDestAttributes(form);
    ApplySourceAttributes(form);
}

TEST(AttributeRules, EachPlaceHasAttributesOnlyWhereFilesStay) {
    for (const bool disable : {false, true}) {
        for (const int sets : {0, 1, 2, 3}) {
            RuleForm form(disable);
            const bool setSource = sets & 1;
            const bool setDest = sets & 2;
            form.choose("optAttrSetSource", setSource);
            form.choose("optAttrSetDest", setDest);
            for (const int action : {2, 0, 3, 1, 4, 5, 2}) {
                form.act(static_cast<Action>(action));
                applyBoth(form);
                const bool source = action != 2;
                const bool destination = action != 2 && action != 3;
                EXPECT_EQ(form.applying(sourceChoice), source ? sourceChoice : "") << action;
                EXPECT_EQ(form.applying(sourceBoxes), source && setSource ? sourceBoxes : "") << action;
                EXPECT_EQ(form.applying(destChoice), destination ? destChoice : "") << action;
                EXPECT_EQ(form.applying(destBoxes), destination && setDest ? destBoxes : "") << action;
                EXPECT_EQ(form.applying(excluded), excluded) << action;
                EXPECT_EQ(form.mark(Page::attributes), (source && setSource) || (destination && setDest) ? "8" : "")
                    << action;
            }
        }
    }
}

TEST(AttributeRules, MarkCountsExcludedBoxesAndNoBoxOfAPlaceThatKeepsItsAttributes) {
    for (const std::string_view name : {"chkAttrArchive(0)", "chkAttrReadOnly(0)", "chkAttrSystem(0)",
                                        "chkAttrHidden(0)", "chkAttrNormal", "chkAttrComp"}) {
        RuleForm form;
        form.chkAttrHidden[1].State = form.chkAttrHidden[2].State = 1;
        form.at(name).State = 2;
        MarkAttributesPage(form);
        EXPECT_EQ(form.mark(Page::attributes), "") << name;
        form.at(name).State = 1;
        MarkAttributesPage(form);
        EXPECT_EQ(form.mark(Page::attributes), "8") << name;
    }
}

}  // namespace
}  // namespace kestedit
