// Scripts and what they must print and store, one story to a file of tests/golden. Each file is read from the top:
//
//   == job NAME       the lines that follow become the file NAME (Windows line ends)
//   == script ARGS    the lines that follow run as a script on ARGS, such as "new" or "--view 9 edit a.job"
//   == prints         what the script before printed, whole; $PWD stands for the test's folder
//   == file NAME      lines that must stand in the file NAME now; behind "not " such that must not
//
// With KESTEDIT_ACCEPT set, what was printed takes the place of what is expected: read it before you commit it.
#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "tests/host/ProgramFixture.h"

namespace kestedit {
namespace {

namespace fs = std::filesystem;

struct Section {
    std::string title;  ///< "job a.job"; empty for what stands above the first
    std::string lines;
    int line;
};

std::vector<Section> sectionsOf(const fs::path& file) {
    std::vector<Section> sections{{"", "", 1}};
    std::ifstream in(file);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.starts_with("== ")) {
            sections.push_back({line.substr(3), "", number});
        } else {
            sections.back().lines += line + "\n";
        }
    }
    return sections;
}

/// The text behind `word` in a section's title, or nothing.
std::optional<std::string> after(const std::string& title, const std::string& word) {
    if (title == word) return "";
    return title.starts_with(word + " ") ? std::optional(title.substr(word.size() + 1)) : std::nullopt;
}

std::string withWindowsLineEnds(const std::string& lines) {
    std::string text;
    for (const char c : lines)
        text += c == '\n' ? "\r\n" : std::string(1, c);
    return text;
}

struct Golden : test::ProgramTest, testing::WithParamInterface<fs::path> {
    void run(Section& section) {
        if (const auto job = after(section.title, "job")) {
            static_cast<void>(folder.file(*job, withWindowsLineEnds(section.lines)));
        } else if (const auto target = after(section.title, "script")) {
            const auto result = script(*target, section.lines);
            printed = withoutFolder(result.out + result.err);
        } else if (section.title == "prints") {
            if (std::getenv("KESTEDIT_ACCEPT")) section.lines = printed;
            EXPECT_EQ(printed, section.lines);
        } else if (const auto file = after(section.title, "file")) {
            expectIn(*file, section.lines);
        } else {
            FAIL() << "no such section: " << section.title;
        }
    }
    [[nodiscard]] std::string withoutFolder(std::string text) const {
        const std::string own = folder.path().string();
        for (std::size_t place = 0; (place = text.find(own, place)) != text.npos;)
            text.replace(place, own.size(), "$PWD");
        return text;
    }
    void expectIn(const std::string& file, const std::string& lines) {
        const std::string stored = "\n" + test::bytesOf(folder.path() / file);
        std::istringstream in(lines);
        for (std::string line; std::getline(in, line);) {
            const bool wanted = !line.starts_with("not ");
            const std::string text = "\n" + line.substr(wanted ? 0 : 4) + "\r\n";
            EXPECT_EQ(stored.find(text) != std::string::npos, wanted) << line << "\n" << stored;
        }
    }

    std::string printed;
};

TEST_P(Golden, PrintsAndStores) {
    auto sections = sectionsOf(GetParam());
    for (Section& section : sections) {
        SCOPED_TRACE(GetParam().filename().string() + ":" + std::to_string(section.line));
        if (!section.title.empty()) run(section);
    }
    if (!std::getenv("KESTEDIT_ACCEPT")) return;
    std::ofstream out(GetParam());
    for (const Section& section : sections)
        out << (section.title.empty() ? "" : "== " + section.title + "\n") << section.lines;
}

std::vector<fs::path> stories() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(KESTEDIT_GOLDEN))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

INSTANTIATE_TEST_SUITE_P(, Golden, testing::ValuesIn(stories()),
                         [](const auto& file) { return file.param.stem().string(); });

}  // namespace
}  // namespace kestedit
