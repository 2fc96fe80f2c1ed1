#include "desktop/WindowMemory.h"

#include <array>
#include <charconv>

namespace kestedit {

namespace {

constexpr std::string_view section = "Window";
constexpr std::string_view widthKey = "Width";
constexpr std::string_view heightKey = "Height";
constexpr std::string_view listKey = "ListWidth";

}  // namespace

WindowMemory::WindowMemory(UserSettings& settings, std::string_view viewLevel)
    : settings_(settings), pageKey_("Page" + std::string{viewLevel}) {}

std::optional<QSize> WindowMemory::size() const {
    const auto width = number(widthKey);
    const auto height = number(heightKey);
    if (!width || !height || *width <= 0 || *height <= 0) return std::nullopt;
    return QSize(*width, *height);
}

std::optional<int> WindowMemory::listWidth() const {
    return number(listKey);
}

std::optional<int> WindowMemory::page() const {
    return number(pageKey_);
}

void WindowMemory::keep(QSize size, int listWidth, int page) {
    const std::array<std::pair<std::string_view, int>, 4> values{{
        {widthKey, size.width()},
        {heightKey, size.height()},
        {listKey, listWidth},
        {pageKey_, page},
    }};
    for (const auto& [key, value] : values) {
        if (number(key) != value) static_cast<void>(settings_.write(section, key, std::to_string(value)));
    }
}

std::optional<int> WindowMemory::number(std::string_view key) const {
    const std::string text = settings_.read(section, key, "");
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || value < 0) return std::nullopt;
    return value;
}

}  // namespace kestedit
