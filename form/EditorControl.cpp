#include "form/EditorControl.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace kestedit {

namespace {

struct ControlName {
    std::string_view base;
    int member;  // 0 also for a name without an index
};

std::optional<ControlName> parseName(std::string_view name) {
    const auto open = name.find('(');
    if (open == std::string_view::npos) return ControlName{name, 0};
    int member = 0;
    const char* const last = name.data() + name.size() - 1;
    const auto [end, error] = std::from_chars(name.data() + open + 1, last, member);
    if (error != std::errc{} || end != last || *last != ')' || member < 0) return std::nullopt;
    return ControlName{name.substr(0, open), member};
}

bool isContainerKind(ControlKind kind) {
    return kind == ControlKind::frame || kind == ControlKind::label || kind == ControlKind::picture;
}

}  // namespace

EditorControl::EditorControl(ControlRegistry& registry, ControlKind kind, std::string_view base, int member,
                             EditorControl* container, Value initial)
    : Base(base),
      Member(member),
      Kind(kind),
      Container(container),
      EditValue(std::move(initial)),
      TabStop(!isContainerKind(kind)) {
    registry.controls_.push_back(this);
}

std::string EditorControl::Name() const {
    std::string name{Base};
    if (Member >= 0) {
        name += '(';
        name += std::to_string(Member);
        name += ')';
    }
    return name;
}

std::string EditorControl::plainCaption() const {
    std::string plain;
    for (std::size_t i = 0; i < Caption.size(); ++i) {
        if (Caption[i] == '&' && ++i == Caption.size()) break;
        plain += Caption[i];
    }
    return plain;
}

std::string EditorControl::text() const {
    const auto* held = std::get_if<std::string>(&EditValue);
    return held ? *held : std::string{};
}

std::int64_t EditorControl::number() const {
    const auto* held = std::get_if<std::int64_t>(&EditValue);
    return held ? *held : 0;
}

std::optional<Date> EditorControl::date() const {
    const auto* held = std::get_if<Date>(&EditValue);
    return held ? std::optional{*held} : std::nullopt;
}

std::optional<TimeOfDay> EditorControl::time() const {
    const auto* held = std::get_if<TimeOfDay>(&EditValue);
    return held ? std::optional{*held} : std::nullopt;
}

bool EditorControl::isEmpty() const {
    if (const auto* held = std::get_if<std::string>(&EditValue)) return held->empty();
    return std::holds_alternative<std::monostate>(EditValue);
}

std::optional<int> EditorControl::itemIndex() const {
    const bool known = ItemIndex >= 0 && std::cmp_less(ItemIndex, Items.size());
    return known ? std::optional{static_cast<int>(ItemIndex)} : std::nullopt;
}

void EditorControl::pick(std::int64_t position) {
    ItemIndex = position;
    const auto known = itemIndex();
    EditValue = known ? Items[static_cast<std::size_t>(*known)] : std::string{};
}

std::vector<std::string> EditorControl::distinctItems() const {
    std::vector<std::string> distinct;
    for (const std::string& item : Items) {
        const std::string number = std::to_string(distinct.size() + 1);
        const bool alone = std::ranges::count(Items, item) == 1;
        distinct.push_back(item.empty() ? number : alone ? item : number + ": " + item);
    }
    return distinct;
}

// Position of the first control of that name, or the number of controls. The members of an array stand together.
std::size_t ControlRegistry::firstOf(std::string_view base) const {
    const auto baseAt = [this](std::uint16_t position) { return controls_[position]->Base; };
    if (firstsByName_.empty()) {
        for (std::size_t position = 0; position < controls_.size(); ++position) {
            if (controls_[position]->Member <= 0) firstsByName_.push_back(static_cast<std::uint16_t>(position));
        }
        std::ranges::sort(firstsByName_, {}, baseAt);
    }
    const auto found = std::ranges::lower_bound(firstsByName_, base, {}, baseAt);
    return found != firstsByName_.end() && baseAt(*found) == base ? *found : controls_.size();
}

EditorControl* ControlRegistry::find(std::string_view name) const {
    const auto wanted = parseName(name);
    if (!wanted) return nullptr;
    const std::size_t position = firstOf(wanted->base) + static_cast<std::size_t>(wanted->member);
    if (position >= controls_.size() || controls_[position]->Base != wanted->base) return nullptr;
    const bool indexed = wanted->base.size() != name.size();
    return indexed && controls_[position]->Member < 0 ? nullptr : controls_[position];
}

EditorControl& ControlRegistry::at(std::string_view name) const {
    EditorControl* const control = find(name);
    if (!control) throw std::invalid_argument("no control named " + std::string{name});
    return *control;
}

std::span<EditorControl* const> ControlRegistry::group(std::string_view base) const {
    const auto begin = controls_.begin() + static_cast<std::ptrdiff_t>(firstOf(base));
    const auto end = std::find_if(begin, controls_.end(), [&](const EditorControl* one) { return one->Base != base; });
    return {begin, end};
}

}  // namespace kestedit
