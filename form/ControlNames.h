// Checks at compile time that a table names only controls that the form has.
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>

#include "form/FormModel.h"

namespace kestedit {

/// Whether `name` is a control: "dxName", "optExist(2)".
[[nodiscard]] constexpr bool isControl(std::string_view name) {
    const auto open = name.find('(');
    const auto* const found = std::ranges::find(controlNames, name.substr(0, open), &NamedControl::base);
    if (found == controlNames.end()) return false;
    if (open == std::string_view::npos) return found->members == 0;
    const std::string_view index = name.substr(open + 1);
    return index.size() == 2 && index[1] == ')' && index[0] >= '0' && index[0] - '0' < found->members;
}

/// Whether `name` is a control that stands alone or the base name of an array: "dxName", "optExist".
[[nodiscard]] constexpr bool isControlBase(std::string_view name) {
    return std::ranges::find(controlNames, name, &NamedControl::base) != controlNames.end();
}

/// Whether each row of a table names a control, or where the row may be about a whole array its base name.
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesControls(const Table& table, Name name) {
    return std::ranges::all_of(table, isControl, name);
}
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesControlBases(const Table& table, Name name) {
    return std::ranges::all_of(table, isControlBase, name);
}

/// Whether no two rows of a table have the same name.
template <typename Table, typename Name>
[[nodiscard]] consteval bool namesNoneTwice(const Table& table, Name name) {
    for (auto row = table.begin(); row != table.end(); ++row) {
        if (std::ranges::find(std::next(row), table.end(), std::invoke(name, *row), name) != table.end()) return false;
    }
    return true;
}

}  // namespace kestedit
