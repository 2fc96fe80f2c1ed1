#include "editor/NumberRanges.h"

#include <algorithm>
#include <array>

namespace kestedit {

namespace {

struct Row {
    std::string_view editor;
    NumberRange range;
};

constexpr std::array rows{
    Row{"dxIntMonthDay", {1, 31}},
    Row{"dxSize", {0, 999'999'999'999'999}},
    Row{"dxFreeSpace", {0, 999'999'999'999}},
};

constexpr NumberRange ordinary{0, 999'999'999};

}  // namespace

NumberRange numberRange(std::string_view editor) {
    const auto* const row = std::ranges::find(rows, editor, &Row::editor);
    return row == rows.end() ? ordinary : row->range;
}

}  // namespace kestedit
