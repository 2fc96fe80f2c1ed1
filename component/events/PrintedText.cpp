#include "component/events/PrintedText.h"

#include "component/events/IsoTime.h"
#include "platform/DateFormat.h"
#include "platform/Text.h"

namespace kestedit {

namespace {

struct ValueText {
    std::string operator()(std::monostate) const { return std::string(emptyText); }
    std::string operator()(const std::string& text) const { return quotedText(text); }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(Date date) const { return isoText(date); }
    std::string operator()(TimeOfDay time) const { return timeText(time); }
};

}  // namespace

std::string quotedText(std::string_view text) {
    std::string word = "\"";
    while (!text.empty()) {
        const char32_t character = takeCharacter(text).codePoint;
        switch (character) {
            case U'"':
                word += "\\\"";
                break;
            case U'\\':
                word += "\\\\";
                break;
            case U'\r':
                word += "\\r";
                break;
            case U'\n':
                word += "\\n";
                break;
            case U'\t':
                word += "\\t";
                break;
            default:
                appendCharacter(word, character);
        }
    }
    return word + '"';
}

std::string flagText(bool flag) {
    return flag ? "True" : "False";
}

std::string valueText(const Value& value) {
    return std::visit(ValueText{}, value);
}

std::string listText(std::span<const std::string> entries) {
    std::string list = "[";
    for (const std::string& entry : entries) {
        if (list.size() > 1) list += ", ";
        list += quotedText(entry);
    }
    return list + ']';
}

}  // namespace kestedit
