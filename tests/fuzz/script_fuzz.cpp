// Any text as a script: its words come back from their printed form, and a fault names a line that there is.
#include <algorithm>

#include "host/ScriptEvents.h"
#include "host/ScriptFailure.h"
#include "host/ScriptParser.h"
#include "host/ScriptText.h"
#include "tests/fuzz/MemoryFile.h"

using namespace kestedit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const auto lines = parseScript(text);
        std::string printed;
        for (const ScriptLine& line : lines) {
            test::require(!line.words.empty(), "a line has a word");
            for (const std::string& word : line.words)
                printed += quotedText(word) + ' ';
            printed += '\n';
        }
        const auto again = parseScript(printed);
        const auto sameWords = [](const ScriptLine& left, const ScriptLine& right) {
            return left.words == right.words;
        };
        test::require(std::ranges::equal(lines, again, sameWords), "words come back from their printed form");
        static_cast<void>(compileScript(lines));
    } catch (const ScriptFailure& failure) {
        const auto last = std::count(text.begin(), text.end(), '\n') + 1;
        test::require(failure.line() >= 1 && failure.line() <= last, "a fault names a line of the script");
    }
    return 0;
}
