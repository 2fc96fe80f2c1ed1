#include "component/CallbackDriver.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "component/CallFailed.h"
#include "editor/dlgNewFolder.h"
#include "editor/frmEdit.h"

namespace kestedit {

namespace {

// One editor is open in a process at a time, so one pointer a thread says which driver runs here.
thread_local CallbackDriver* running = nullptr;

/// Changes a value for the time of a scope.
template <class Thing>
class During {
  public:
    During(Thing& place, Thing value) : place_(place), before_(place) { place_ = value; }
    ~During() { place_ = before_; }
    During(const During&) = delete;
    During& operator=(const During&) = delete;

  private:
    Thing& place_;
    Thing before_;
};

// ---- events

std::int64_t numberOf(std::string_view text) {
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        throw CallFailed(KESTEDIT_BAD_ARGUMENT, "\"" + std::string(text) + "\" is no whole number");
    return number;
}

void type(frmEdit& form, EditorControl& control, std::string_view text) {
    if (control.Kind == ControlKind::number || control.Kind == ControlKind::spin) {
        form.onNumberTyped(control, text.empty() ? std::nullopt : std::optional(numberOf(text)));
    } else {
        form.onTextTyped(control, text);
    }
    form.onEditingFinished(control);
}

void check(frmEdit& form, EditorControl& control, std::string_view text) {
    if (text != "0" && text != "1" && text != "2")
        throw CallFailed(KESTEDIT_BAD_ARGUMENT, "a check box takes 0, 1 or 2, not \"" + std::string(text) + '"');
    form.onCheckClicked(control, text.front() - '0');
}

void choose(frmEdit& form, EditorControl& control, std::string_view) {
    form.onOptionChosen(control);
}

void pick(frmEdit& form, EditorControl& control, std::string_view text) {
    form.onItemPicked(control, text);
}

void click(frmEdit& form, EditorControl& control, std::string_view) {
    form.onCommand(control);
}

struct Event {
    std::string_view verb;
    void (*act)(frmEdit& form, EditorControl& control, std::string_view text);
};

constexpr auto events = std::to_array<Event>({
    {"type", type},
    {"check", check},
    {"choose", choose},
    {"pick", pick},
    {"click", click},
});

// ---- answers

struct BoxAnswers {
    Buttons buttons;
    kestEdit_Buttons code;
    Answer careful;
    std::array<std::optional<Answer>, 3> allowed;
};

// clang-format off
constexpr auto boxAnswers = std::to_array<BoxAnswers>({
    {Buttons::ok,                  KESTEDIT_BUTTONS_OK,                    Answer::ok,     {Answer::ok}},
    {Buttons::yesNo,               KESTEDIT_BUTTONS_YES_NO,                Answer::no,     {Answer::yes, Answer::no}},
    {Buttons::cancelRetryContinue, KESTEDIT_BUTTONS_CANCEL_RETRY_CONTINUE, Answer::cancel, {Answer::cancel, Answer::retry, Answer::proceed}},
});

// In the order of kestEdit_Answer.
constexpr std::array answers{Answer::ok, Answer::yes, Answer::no, Answer::cancel, Answer::retry, Answer::proceed};
// clang-format on

}  // namespace

CallbackDriver* CallbackDriver::runningHere(kestEdit_Handle editor) {
    return running && running->editor_ == editor ? running : nullptr;
}

void CallbackDriver::run(frmEdit& form) {
    const During here(running, this);
    const During open(form_, &form);
    callbacks_.run(editor_, callbacks_.user);
    if (form.isOpen()) form.onCommand(form.cmdCancel);
}

void CallbackDriver::event(std::string_view verb, std::string_view control, std::string_view text) {
    if (inEvent_) throw CallFailed(KESTEDIT_BUSY, "a message box waits for its answer");
    if (!form_->isOpen()) throw CallFailed(KESTEDIT_REFUSED, "the form has closed");
    const During inside(inEvent_, true);
    if (verb == "close") return form_->onCloseBox();
    const auto found = std::ranges::find(events, verb, &Event::verb);
    if (found == events.end())
        throw CallFailed(KESTEDIT_UNKNOWN_NAME, "no event is named \"" + std::string(verb) + '"');
    EditorControl* const target = form_->find(control);
    if (!target) throw CallFailed(KESTEDIT_UNKNOWN_NAME, "no control is named \"" + std::string(control) + '"');
    found->act(*form_, *target, text);
}

Answer CallbackDriver::showMessage(const MessageBox& box) {
    const BoxAnswers& row = *std::ranges::find(boxAnswers, box.buttons, &BoxAnswers::buttons);
    if (!callbacks_.ask) return row.careful;
    const std::int32_t given = callbacks_.ask(box.title.c_str(), box.text.c_str(), row.code, callbacks_.user);
    const auto position = static_cast<std::size_t>(given);  // a negative answer is far out of range, too
    if (position >= answers.size() || !std::ranges::count(row.allowed, std::optional(answers.at(position))))
        throw CallFailed(KESTEDIT_BAD_ARGUMENT,
                         "the message box \"" + box.text + "\" has no button for the answer " + std::to_string(given));
    return answers.at(position);
}

void CallbackDriver::runNewFolder(dlgNewFolder& dialog) {
    dialog.onCloseBox();
}

}  // namespace kestedit
