#include "editor/LineBreaks.h"

namespace kestedit {

namespace {

std::string withLineBreaks(std::string_view text, std::string_view lineBreak) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' || text[i] == '\n') {
            if (text.substr(i, 2) == "\r\n") ++i;
            result += lineBreak;
        } else {
            result += text[i] == '\0' ? ' ' : text[i];
        }
    }
    return result;
}

}  // namespace

std::string singleLine(std::string_view text) {
    return withLineBreaks(text, " ");
}

std::string windowsLines(std::string_view text) {
    return withLineBreaks(text, "\r\n");
}

}  // namespace kestedit
