#include <algorithm>
#include <cctype>
#include <regex>
#include <set>
#include <string>

#include "persistence/JobFormat.h"
#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

bool holdsValue(const EditorControl& control) {
    return control.Kind == ControlKind::check || control.Kind >= ControlKind::option;
}

// The spin editors of a duration share the key of its days.
std::string_view ownerOf(std::string_view base) {
    if (base == "dxHours" || base == "dxMinutes") return "dxDays";
    if (base == "dxAgeHours" || base == "dxAgeMinutes") return "dxAge";
    return base;
}

// A name that the form does not have makes load and save throw for every job; a key that differs from another in case
// alone is the same key to every reader.
TEST(JobFormatTest, NamesKnownControlsAndEachKeyOnce) {
    const FormModel form;
    std::set<std::string> keys;
    for (const JobRow& row : jobFormat()) {
        EXPECT_TRUE(row.control.empty() || form.find(row.control)) << row.control;
        std::string folded{row.key};
        std::ranges::transform(folded, folded.begin(), [](unsigned char c) { return std::tolower(c); });
        EXPECT_TRUE(keys.insert(folded).second) << row.key;
    }
}

TEST(JobFormatTest, StoresEveryControlThatAUserFills) {
    const FormModel form;
    std::set<std::string> stored;
    for (const JobRow& row : jobFormat())
        stored.emplace(row.control);
    for (const EditorControl* control : form.controls()) {
        if (!holdsValue(*control) || !isStored(*control)) continue;
        EXPECT_TRUE(stored.contains(control->Name()) || stored.contains(std::string{ownerOf(control->Base)}))
            << control->Name();
    }
}

// Authors of runners read the document, not the code.
TEST(JobFormatTest, TheDocumentListsTheSameKeysInTheSameOrder) {
    const auto document = std::filesystem::path(__FILE__).parent_path() / "../../docs/job-file.md";
    const std::string text = bytesOf(document);
    std::string listed;
    const std::regex row{R"(\n\| `(\w+)` \| (?:`([^`]*)`)?)"};
    for (std::sregex_iterator found{text.begin(), text.end(), row}, end; found != end; ++found) {
        listed += found->str(1) + " " + found->str(2) + "\n";
    }
    std::string expected;
    for (const JobRow& line : jobFormat())
        expected.append(line.key).append(" ").append(line.control).append("\n");
    EXPECT_EQ(listed, expected);
}

TEST(JobFormatTest, VersionHasTwoDigitsBehindEachPoint) {
    EXPECT_TRUE(std::regex_match(std::string{programVersion()}, std::regex{R"([1-9]\d*\.\d\d\.\d\d)"}))
        << programVersion();
}

}  // namespace

}  // namespace kestedit
