#include "component/CallbackDriver.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "component/CallFailed.h"
#include "component/events/EventFaults.h"
#include "component/events/Properties.h"
#include "component/events/UserEvents.h"
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

/// "optAction(3)" as the words of a choice; a name alone stands for member 0.
std::vector<std::string> memberWords(std::string_view name) {
    const auto open = name.find('(');
    if (open == std::string_view::npos || !name.ends_with(')')) return {std::string(name), "0"};
    return {std::string(name.substr(0, open)), std::string(name.substr(open + 1, name.size() - open - 2))};
}

/// The words behind the verb: `name` where a control or a group stands, `text` everywhere else.
std::vector<std::string> wordsOf(const Verb& verb, const char* name, const char* text) {
    const auto isName = [](const ArgumentKind* kind) {
        return kind == &arguments::control || kind == &arguments::group;
    };
    const std::string_view given = name ? name : "";
    if (verb.takes[1] == &arguments::member && !text) return memberWords(given);
    std::vector<std::string> words;
    for (const ArgumentKind* kind : verb.takes) {
        if (kind) words.emplace_back(isName(kind) ? given : text ? text : "");
    }
    return words;
}

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
    {Buttons::yesNoCancel,         KESTEDIT_BUTTONS_YES_NO_CANCEL,         Answer::cancel, {Answer::yes, Answer::no, Answer::cancel}},
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

void CallbackDriver::event(std::string_view verb, const char* name, const char* text) {
    if (inEvent_) throw CallFailed(KESTEDIT_BUSY, "a question waits for its answer");
    const During inside(inEvent_, true);
    const UserEvent* const event = findUserEvent(verb);
    if (!event) throw UnknownName("no event is named \"" + std::string(verb) + '"');
    perform(*event, {*form_, dialog_}, readArguments(event->verb, wordsOf(event->verb, name, text)));
}

std::string CallbackDriver::text(std::string_view property) const {
    return propertyText({*form_, dialog_}, property);
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

std::optional<std::string> CallbackDriver::choose(kestEdit_Choose chooser, const std::string& title,
                                                  const std::string& from) const {
    const char* const path = chooser ? chooser(title.c_str(), from.c_str(), callbacks_.chooserUser) : nullptr;
    return path ? std::optional<std::string>(path) : std::nullopt;
}

std::optional<std::string> CallbackDriver::chooseFolder(const FolderRequest& request) {
    return choose(callbacks_.folder, request.title, request.initialPath);
}

std::optional<std::string> CallbackDriver::chooseFile(const FileRequest& request) {
    return choose(callbacks_.file, request.title, request.filter);
}

void CallbackDriver::runNewFolder(dlgNewFolder& dialog) {
    const During open(dialog_, &dialog);
    const During answering(inEvent_, false);  // the dialog takes events of its own
    if (callbacks_.newFolder) callbacks_.newFolder(editor_, callbacks_.chooserUser);
    if (dialog.isOpen()) dialog.onCloseBox();
}

}  // namespace kestedit
