#include "host/ErrorLine.h"

#include <algorithm>
#include <string>

namespace kestedit {

void writeErrorLine(std::ostream& err, std::string_view text) {
    std::string line{text};
    std::ranges::replace_if(
        line, [](char character) { return (character >= 0 && character < ' ') || character == '\x7f'; }, '?');
    err << "kestedit: " << line << '\n';
    err.flush();
}

}  // namespace kestedit
