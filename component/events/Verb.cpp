#include "component/events/Verb.h"

#include <algorithm>

#include "component/events/EventFaults.h"
#include "component/events/PrintedText.h"

namespace kestedit {

std::string usage(const Verb& verb) {
    std::string words{verb.name};
    for (const ArgumentKind* kind : verb.takes) {
        if (kind) words.append(" ").append(kind->placeholder);
    }
    return words;
}

Arguments readArguments(const Verb& verb, std::span<const std::string> words) {
    const auto wanted = static_cast<std::size_t>(std::ranges::count_if(verb.takes, [](auto* kind) { return kind; }));
    if (words.size() != wanted) throw WrongWord("write " + usage(verb));
    Arguments given;
    for (std::size_t i = 0; i < wanted; ++i) {
        const auto argument = verb.takes[i]->read(words[i]);
        if (!argument) {
            throw WrongWord(std::string(verb.name) + ": " + quotedText(words[i]) + " is not " +
                            std::string(verb.takes[i]->wanted));
        }
        given.push_back(*argument);
    }
    return given;
}

}  // namespace kestedit
