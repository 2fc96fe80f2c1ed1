// Any text as a script: its words come back from their printed form, and a line that cannot be read says why.
#include <algorithm>

#include "component/events/PrintedText.h"
#include "host/ScriptEvents.h"
#include "host/ScriptParser.h"
#include "tests/fuzz/Fuzzing.h"

using namespace kestedit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto count = std::count(text.begin(), text.end(), '\n') + 1;
    const auto lines = parseScript(text);
    std::vector<ScriptLine> good;
    std::string printed;
    for (const ScriptLine& line : lines) {
        test::require(line.number >= 1 && line.number <= count, "a line is one of the script");
        test::require(line.words.empty() != line.fault.empty(), "a line has words or a fault");
        if (!line.fault.empty()) continue;
        good.push_back(line);
        for (const std::string& word : line.words)
            printed += quotedText(word) + ' ';
        printed += '\n';
    }
    const bool same = std::ranges::equal(good, parseScript(printed), {}, &ScriptLine::words, &ScriptLine::words);
    test::require(same, "words come back from their printed form");
    static_cast<void>(compileScript(lines));
    return 0;
}
