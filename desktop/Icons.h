// The program's own pictures, in one family drawn for light and for dark backgrounds.
#pragma once

#include <QColor>
#include <QIcon>
#include <string_view>

namespace kestedit {

/// The picture `name` ("action-3", "node-8", "browse") of the family that stands out from `background`.
[[nodiscard]] QIcon icon(std::string_view name, const QColor& background);

/// The picture of the program itself.
[[nodiscard]] QIcon programIcon();

/// Whether texts and pictures on `background` have to be light.
[[nodiscard]] bool isDark(const QColor& background);

}  // namespace kestedit
