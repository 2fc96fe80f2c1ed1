#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <tuple>

#include "editor/FormModel.h"
#include "i18n/LoadLanguage.h"

namespace kestedit {
namespace {

TEST(FormTexts, GiveEachTargetOneKeyButFourLabelsTwo) {
    using Kind = TextTarget::Kind;
    const FormModel form;
    std::set<std::tuple<Kind, std::string, int>> targets;
    std::set<std::string> twice;
    for (const TextTarget& row : formTexts()) {
        // By the control's own name: "lblSource" and "lblSource(0)" are one target.
        const std::string name = row.control.empty() ? "catalogue" : form.at(row.control).Name();
        const Kind kind = row.kind == Kind::catalogueBlank ? Kind::catalogue : row.kind;
        EXPECT_EQ(row.control.empty(), kind == Kind::catalogue) << "t" << row.key;
        if (!targets.emplace(kind, name, row.index).second) twice.insert(name);
    }
    EXPECT_EQ(twice, (std::set<std::string>{"lblComment", "lblDestZDec", "lblDestZExist", "lblDestZFilter"}));
}

TEST(FormTexts, LeaveTheUnitWordsToTheCommonSection) {
    std::set<int> entries;
    for (const TextTarget& row : formTexts()) {
        if (row.control.empty()) entries.insert(row.index);
    }
    for (int i = 0; i < static_cast<int>(catalogueSize); ++i)
        EXPECT_EQ(entries.contains(i), i < 27 || i > 32) << i;
}

}  // namespace
}  // namespace kestedit
