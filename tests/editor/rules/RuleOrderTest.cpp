// All rules over forms made at random: no rule undoes what another has done, and none touches a value.
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "editor/rules/RefreshPageStates.h"
#include "editor/rules/attributes.h"
#include "editor/rules/compression.h"
#include "editor/rules/conditions.h"
#include "editor/rules/dateAge.h"
#include "editor/rules/existing.h"
#include "editor/rules/paths.h"
#include "editor/rules/schedule.h"
#include "editor/rules/selection.h"
#include "editor/rules/synchronise.h"
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

/// Everything that the rules may change, one line a control.
std::string lookOf(const FormModel& form) {
    std::string look = valuesOf(form);
    for (const EditorControl* control : form.controls()) {
        look += control->Name() + (control->Enabled ? " enabled" : "") + (control->Visible ? " visible" : "") +
                (control->TabStop ? " stop" : "") + (control->ReadOnly ? " read-only " : " ") + control->Caption + "\n";
    }
    for (const NavigationNode& node : form.Navigation.Nodes)
        look += "node " + node.Title + "=" + node.Image + "\n";
    return look;
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
        const std::string look = lookOf(form);
        EXPECT_EQ(valuesOf(form), values) << "seed " << seed;
        std::shuffle(rules.begin(), rules.end(), random);
        for (const auto rule : rules)
            rule(form);
        ASSERT_EQ(lookOf(form), look) << "seed " << seed;
    }
}

TEST(RuleOrder, SecondPassHasNoFurtherEffectInAnyView) {
    for (unsigned seed = 0; seed < 20; ++seed) {
        for (const int view : {4, 9, 15, 23}) {
            Random random(seed);
            RuleForm form;
            form.ViewLevel = std::to_string(view);
            form.Navigation.Nodes.clear();
            BuildNavigationTree(form);
            fill(form, random);
            const auto run = [&](std::string_view what, int page) {
                RefreshPageStates(form, what, view, page);
                const std::string look = lookOf(form);
                RefreshPageStates(form, what, view, page);
                ASSERT_EQ(lookOf(form), look) << "seed " << seed << " view " << view << " page " << page;
            };
            run("all", 0);
            for (int page = 0; page < 13; ++page)
                run("", page);
        }
    }
}

TEST(RuleOrder, ChoicesThatAViewLeavesOutStayHidden) {
    for (const bool disable : {false, true}) {
        for (const std::string view : {"9", "23"}) {
            RuleForm form(disable);
            form.ViewLevel = view;
            ApplyViewRestrictions(form);
            for (const auto action : {Action::synchronise, Action::remove, Action::copy}) {
                form.act(action);
                ApplyAction(form);
                ApplyLoadedChoices(form);
                EXPECT_FALSE(form.optAction[3].Visible || form.optAction[4].Visible);
                EXPECT_TRUE(view != "9" || !(form.optIntervall[2].Visible || form.fraExistingUnzip.Visible));
            }
        }
    }
}

}  // namespace
}  // namespace kestedit
