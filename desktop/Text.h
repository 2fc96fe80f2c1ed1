// Texts on their way between the core (UTF-8, "\r\n") and the toolkit (UTF-16, "\n").
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kestedit {

[[nodiscard]] QString toQt(std::string_view text);
[[nodiscard]] std::string fromQt(const QString& text);

/// Lines end with "\n" alone.
[[nodiscard]] QString linesToQt(std::string_view text);

/// A caption as it is read aloud or shown where no mnemonic works: "&Save" is "Save", "A && B" is "A & B".
[[nodiscard]] QString withoutMnemonic(const QString& caption);

/// A tool tip is shown as it stands, never read as markup.
[[nodiscard]] QString toolTipText(std::string_view text);

}  // namespace kestedit
