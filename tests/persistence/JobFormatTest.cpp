#include <regex>
#include <string>

#include "persistence/JobFormat.h"
#include "tests/persistence/JobFixture.h"

namespace kestedit {

namespace {

// Authors of runners read the document, not the code.
TEST(JobFormatTest, TheDocumentListsTheSameKeysInTheSameOrder) {
    const std::string text = bytesOf(std::filesystem::path(__FILE__).parent_path() / "../../docs/job-file.md");
    std::string listed;
    const std::regex row{R"(\n\| `(\w+)` \| (?:`([^`]*)`)?)"};
    for (std::sregex_iterator found{text.begin(), text.end(), row}, end; found != end; ++found)
        listed += found->str(1) + " " + found->str(2) + "\n";
    std::string expected;
    for (const JobRow& line : jobFormat())
        expected.append(line.key).append(" ").append(line.control).append("\n");
    EXPECT_EQ(listed, expected);
}

TEST(JobFormatTest, VersionHasTwoDigitsBehindEachPoint) {
    EXPECT_TRUE(std::regex_match(std::string{programVersion()}, std::regex{R"([1-9]\d*\.\d\d\.\d\d)"}));
}

}  // namespace

}  // namespace kestedit
