#include "editor/NumberRanges.h"

#include <algorithm>
#include <array>

#include "form/ControlNames.h"

namespace kestedit {

namespace {

struct EditorRange {
    std::string_view editor;
    NumberRange range;
};

constexpr std::array numberRanges{
    EditorRange{"dxIntMonthDay", {1, 31}},
    EditorRange{"dxSize", {0, 999'999'999'999'999}},
    EditorRange{"dxFreeSpace", {0, 999'999'999'999}},
};

static_assert(namesControlBases(numberRanges, &EditorRange::editor), "a range names no control");
static_assert(namesNoneTwice(numberRanges, &EditorRange::editor), "an editor has two ranges");

constexpr NumberRange ordinary{0, 999'999'999};

}  // namespace

NumberRange numberRange(std::string_view editor) {
    const auto* const row = std::ranges::find(numberRanges, editor, &EditorRange::editor);
    return row == numberRanges.end() ? ordinary : row->range;
}

}  // namespace kestedit
