// What each choice of the user makes reachable and which mark it gives its page, as choices.walks lists it.
#include <map>
#include <set>
#include <sstream>

#include "editor/NodeImages.h"
#include "editor/Views.h"
#include "tests/editor/EditorFixture.h"

namespace kestedit {
namespace {

struct Choices : test::EditorTest, testing::WithParamInterface<std::tuple<int, bool>> {
    void run(const std::string& event) {
        if (event == "-") return;
        EditorControl& control = at(event.substr(0, event.find('=')));
        const int value = event.find('=') == event.npos ? 1 : event.back() - '0';
        if (control.Kind == ControlKind::option) return form().onOptionChosen(control);
        if (control.Kind == ControlKind::pick) return pick(control.Name(), static_cast<std::size_t>(value));
        check(control.Name(), value);
    }
    /// The letters of the groups that can be reached, or "-"; "?" behind one that can in part.
    [[nodiscard]] std::string reached(bool hides, bool disables) {
        std::string letters;
        for (const auto& [letter, names] : groups) {
            std::set<bool> reachable;
            std::istringstream words(names);
            for (std::string name; words >> name;) {
                const EditorControl& control = at(name);
                reachable.insert(control.Enabled && control.Visible);
                EXPECT_TRUE(!hides || (disables ? control.Visible : control.Enabled)) << name;
            }
            if (reachable.contains(true)) letters += letter;
            if (reachable.size() > 1) letters += '?';
        }
        return letters.empty() ? "-" : letters;
    }
    std::map<std::string, std::string> groups;
};
INSTANTIATE_TEST_SUITE_P(ViewAndDisableOrHide, Choices, testing::Combine(testing::Values(4, 15), testing::Bool()));

TEST_P(Choices, MakeTheirEditorsReachableAndMarkTheirPage) {
    const auto& [view, disables] = GetParam();
    folder.file("program.ini", disables ? "[EditWin]\nDisableInsteadOfHide=1\n" : "");
    std::ifstream walks(KESTEDIT_WALKS);
    std::string walk;
    std::optional<int> node;
    bool hides = true;
    for (std::string line; std::getline(walks, line);) {
        std::istringstream words(line);
        std::string verb, first, reachable, mark;
        words >> verb >> first;
        SCOPED_TRACE(walk + ": " + line);
        if (verb == "walk") {
            create(view);
            groups.clear();
            walk = line;
            hides = walk.find(" hides ") != walk.npos;
            node = nodeOfPage(form(), static_cast<Page>(std::stoi(first)));
        } else if (verb == "group") {
            std::getline(words, groups[first]);
        } else if (verb == "do") {
            words >> reachable >> mark;
            run(first);
            EXPECT_EQ(reached(hides, disables), reachable);
            const std::string found = node ? image(static_cast<std::size_t>(*node)) : "";
            EXPECT_TRUE(!node || mark.empty() || found == (mark == "-" ? "" : mark)) << found;
        } else {
            EXPECT_TRUE(verb.empty() || verb == "#") << "no such row";
        }
    }
    EXPECT_FALSE(groups.empty()) << "no walk was read";
}

}  // namespace
}  // namespace kestedit
