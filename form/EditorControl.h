// One control of a form, as rules and drivers see it: a name and the properties that the editor's logic reads and
// writes.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "platform/DateTime.h"
#include "platform/Export.h"

namespace kestedit {

/// What a control is to the user, and so which events it takes.
enum class ControlKind : std::uint8_t {
    frame,
    label,
    command,
    picture,
    nodeList,
    check,
    option,
    text,
    password,
    memo,
    path,  ///< a text with inner buttons: 0 browses, 1 (where there is one) creates a folder
    pick,
    number,
    spin,
    date,
    time
};

/// The content of an editor: empty, text, number, date or time of day.
using Value = std::variant<std::monostate, std::string, std::int64_t, Date, TimeOfDay>;

/// What a user types into a date or time, until the field is left with a text that can be read.
struct TypedMoment {
    std::string text;
    Value before;           ///< what the text is to replace, and what stays when it cannot be read
    bool left = false;      ///< the field has been left with the text: what is wrong with it is told
    bool heldSave = false;  ///< a save has stopped at it
};

class ControlRegistry;

/// Setting a property runs nothing: whoever changes a control calls the rules that depend on it.
struct KESTEDIT_EXPORT EditorControl {
    /// `member` is the index in a control array, -1 for a control that stands alone. `container` is the frame it stands
    /// in and must outlive it. Enters itself into `registry`.
    EditorControl(ControlRegistry& registry, ControlKind kind, std::string_view base, int member,
                  EditorControl* container, Value initial = {});
    EditorControl(ControlRegistry& registry, ControlKind kind, std::string_view base, Value initial = {})
        : EditorControl(registry, kind, base, -1, nullptr, std::move(initial)) {}
    EditorControl(ControlRegistry& registry, ControlKind kind, std::string_view base, EditorControl& container,
                  Value initial = {})
        : EditorControl(registry, kind, base, -1, &container, std::move(initial)) {}
    EditorControl(const EditorControl&) = delete;
    EditorControl& operator=(const EditorControl&) = delete;

    const std::string_view Base;  ///< "optExist"
    const int Member;             ///< 2, or -1
    const ControlKind Kind;
    EditorControl* Container;  ///< not owned; null for what stands on the form itself

    Value EditValue;
    int State = 0;  ///< 0 clear, 1 set, 2 grey; every test is whether it equals 1
    bool Enabled = true;
    bool Visible = true;
    bool ReadOnly = false;  ///< the user cannot type into it; its inner buttons still work
    bool TabStop = true;
    int TabIndex = -1;  ///< -1: not in the tab sequence
    std::string Caption;
    std::string ToolTipText;
    bool NoticeWarns = true;  ///< false: the notice is only worth knowing
    std::string Notice;  ///< stands beside the control: what is wrong with its content, or worth knowing; mostly empty
    std::vector<std::string> Items;
    /// Of a pick list: position of the entry that was loaded or picked, whatever its text is; -1 for none. May lie
    /// behind the last entry, when a job was made by an editor with a longer list.
    std::int64_t ItemIndex = -1;
    /// What the job stores for this control and the control cannot show ("7" for a group of three, notes that are too
    /// long). A save writes it back for as long as the user has not changed the control. Of a group, that of member 0.
    std::optional<std::string> Unread;
    std::optional<TypedMoment> Typed;  ///< of a date or time whose field shows this text in place of the value

    /// "optExist(2)", or the base name alone.
    [[nodiscard]] std::string Name() const;

    /// The caption without its mnemonic: "&Save" reads "Save", "A && B" reads "A & B".
    [[nodiscard]] std::string plainCaption() const;

    [[nodiscard]] bool isSet() const { return State == 1; }
    /// Text of a text control; empty when it holds none.
    [[nodiscard]] std::string text() const;
    /// Number of a number or spin control; 0 when it holds none.
    [[nodiscard]] std::int64_t number() const;
    [[nodiscard]] std::optional<Date> date() const;
    [[nodiscard]] std::optional<TimeOfDay> time() const;
    /// The empty mark: no value at all, or a text of length 0.
    [[nodiscard]] bool isEmpty() const;
    /// ItemIndex when the list has such an entry.
    [[nodiscard]] std::optional<int> itemIndex() const;
    /// Selects an entry by its position: ItemIndex and, as its text, EditValue.
    void pick(std::int64_t position);
    /// Items as a person can tell them apart: one that is empty or stands there twice has its number in front.
    [[nodiscard]] std::vector<std::string> distinctItems() const;
};

/// The controls of one form, in the order of their declaration.
class KESTEDIT_EXPORT ControlRegistry {
  public:
    ControlRegistry() = default;
    ControlRegistry(const ControlRegistry&) = delete;
    ControlRegistry& operator=(const ControlRegistry&) = delete;

    [[nodiscard]] const std::vector<EditorControl*>& controls() const { return controls_; }

    /// The control of that name ("chkZipAll", "optExist(2)"; a name alone stands for member 0 of an array), or null.
    [[nodiscard]] EditorControl* find(std::string_view name) const;
    /// As find; throws std::invalid_argument for an unknown name.
    [[nodiscard]] EditorControl& at(std::string_view name) const;
    /// All members of an array, or the one control, in index order.
    [[nodiscard]] std::span<EditorControl* const> group(std::string_view base) const;

  private:
    friend struct EditorControl;
    [[nodiscard]] std::size_t firstOf(std::string_view base) const;

    std::vector<EditorControl*> controls_;             // not owned: each is a member of the form
    mutable std::vector<std::uint16_t> firstsByName_;  // first control of each name, sorted by name; made on first use
};

/// An enumeration of the members of a control array.
template <typename Name>
concept MemberName = std::is_enum_v<Name>;

/// A control array: N controls of one name, addressed by index.
template <std::size_t N>
class ControlArray {
  public:
    ControlArray(ControlRegistry& registry, ControlKind kind, std::string_view base, EditorControl& container)
        : ControlArray(registry, kind, base, container, std::make_index_sequence<N>{}) {}

    [[nodiscard]] EditorControl& operator[](std::size_t index) { return members_.at(index); }
    [[nodiscard]] const EditorControl& operator[](std::size_t index) const { return members_.at(index); }
    /// By what the member stands for: `optAction[Action::move]`.
    template <MemberName Name>
    [[nodiscard]] EditorControl& operator[](Name member) {
        return members_.at(static_cast<std::size_t>(member));
    }
    template <MemberName Name>
    [[nodiscard]] const EditorControl& operator[](Name member) const {
        return members_.at(static_cast<std::size_t>(member));
    }
    [[nodiscard]] auto begin() { return members_.begin(); }
    [[nodiscard]] auto end() { return members_.end(); }
    [[nodiscard]] auto begin() const { return members_.begin(); }
    [[nodiscard]] auto end() const { return members_.end(); }
    [[nodiscard]] static constexpr std::size_t size() { return N; }

    /// Index of the first member whose State is 1.
    [[nodiscard]] std::optional<int> selected() const {
        for (const EditorControl& member : members_) {
            if (member.isSet()) return member.Member;
        }
        return std::nullopt;
    }
    /// Sets one member's State to 1 and the others' to 0.
    void select(std::size_t index) {
        for (EditorControl& member : members_)
            member.State = member.Member == static_cast<int>(index) ? 1 : 0;
    }

  private:
    template <std::size_t... I>
    ControlArray(ControlRegistry& registry, ControlKind kind, std::string_view base, EditorControl& container,
                 std::index_sequence<I...>)
        : members_{EditorControl(registry, kind, base, static_cast<int>(I), &container)...} {}

    std::array<EditorControl, N> members_;
};

}  // namespace kestedit
