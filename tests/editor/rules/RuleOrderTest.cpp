// All rules over forms made at random: no rule undoes what another has done, and none touches a value.
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "editor/rules/attributes.h"
#include "editor/rules/compression.h"
#include "editor/rules/conditions.h"
#include "editor/rules/dateAge.h"
#include "editor/rules/existing.h"
#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "editor/rules/selection.h"
#include "editor/rules/synchronise.h"
#include "tests/editor/EditorFixture.h"
#include "tests/editor/rules/RuleForm.h"

namespace kestedit {
namespace {

using test::RuleForm;
using Random = std::mt19937;

int below(Random& random, int end) {
    return std::uniform_int_distribution{0, end - 1}(random);
}

void fill(RuleForm& form, Random& random) {
    form.DisableInsteadOfHide = below(random, 2) == 1;
    for (EditorControl* control : form.controls()) {
        if (control->Kind == ControlKind::check) control->State = below(random, 3);
        if (control->Kind == ControlKind::text) control->EditValue = below(random, 2) ? "some" : "";
        if (control->Kind == ControlKind::option && control->Member == 0) {
            const int members = static_cast<int>(form.group(control->Base).size());
            form.choose(control->Base, below(random, members + 1) - 1);
        }
        if (control->Kind == ControlKind::pick && !control->Items.empty() && below(random, 2)) {
            control->EditValue =
                control->Items[static_cast<std::size_t>(below(random, static_cast<int>(control->Items.size())))];
        }
    }
    form.act(static_cast<Action>(below(random, 6)));
}

std::string valuesOf(const FormModel& form) {
    std::string values;
    for (const EditorControl* control : form.controls()) {
        values += control->Name() + "=" + std::to_string(control->State) + control->text() + "\n";
    }
    return values;
}

TEST(RuleOrder, AnyOrderComesToTheSameAndKeepsAllValues) {
    std::vector<void (*)(FormModel&)> rules{
        ApplySubFolder,      ApplyFolderMatch,
        ApplyFileMatch,      ApplyExt,
        ApplySize,           ApplyAge,
        ApplyDestFileTime,   ApplySourceAttributes,
        ApplyDestAttributes, MarkAttributesPage,
        ApplyExist,          ApplyExistingFilesPage,
        ApplyRenameText,     ApplyRenameScheme,
        ApplySyncStart,      ApplyIntervall,
        ApplyIntTime,        ApplyMonitorPath,
        ApplyEditPaths,      ApplyDestinationPath,
        ApplyZipAll,         ApplyFolderStructure,
        ApplyFreeSpace,
    };
    for (unsigned seed = 0; seed < 100; ++seed) {
        Random random(seed);
        RuleForm form;
        fill(form, random);
        const std::string values = valuesOf(form);
        for (const auto rule : rules)
            rule(form);
        const std::string look = test::dumpOf(form);
        EXPECT_EQ(valuesOf(form), values) << "seed " << seed;
        std::shuffle(rules.begin(), rules.end(), random);
        for (const auto rule : rules)
            rule(form);
        ASSERT_EQ(test::differences(look, test::dumpOf(form)), "") << "seed " << seed;
    }
}

}  // namespace
}  // namespace kestedit
