#include "host/ScriptPrompts.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "component/events/PrintedText.h"

namespace kestedit {

namespace {

std::string_view nameOf(Answer answer) {
    switch (answer) {
        case Answer::ok:
            return "Ok";
        case Answer::yes:
            return "Yes";
        case Answer::no:
            return "No";
        case Answer::cancel:
            return "Cancel";
        case Answer::retry:
            return "Retry";
        case Answer::proceed:
            return "Continue";
    }
    throw std::logic_error("an answer without a name");
}

/// What the buttons of a box answer, from left to right.
std::span<const Answer> answersOf(Buttons buttons) {
    static constexpr Answer ok[] = {Answer::ok};
    static constexpr Answer yesNo[] = {Answer::yes, Answer::no};
    static constexpr Answer cancelRetryContinue[] = {Answer::cancel, Answer::retry, Answer::proceed};
    static constexpr Answer yesNoCancel[] = {Answer::yes, Answer::no, Answer::cancel};
    switch (buttons) {
        case Buttons::ok:
            return ok;
        case Buttons::yesNo:
            return yesNo;
        case Buttons::cancelRetryContinue:
            return cancelRetryContinue;
        case Buttons::yesNoCancel:
            return yesNoCancel;
    }
    throw std::logic_error("buttons without answers");
}

/// message "TITLE" "TEXT" [Yes No]
std::string questionOf(const MessageBox& box) {
    std::string names;
    for (const Answer answer : answersOf(box.buttons)) {
        if (!names.empty()) names += ' ';
        names += nameOf(answer);
    }
    return "message " + quotedText(box.title) + ' ' + quotedText(box.text) + " [" + names + ']';
}

}  // namespace

Answer ScriptPrompts::showMessage(const MessageBox& box) {
    const std::string question = questionOf(box);
    if (answers_.empty()) throw std::runtime_error("no answer is queued for " + question);
    const Answer answer = answers_.front();
    answers_.pop_front();
    if (std::ranges::find(answersOf(box.buttons), answer) == answersOf(box.buttons).end()) {
        throw std::runtime_error("the answer " + std::string(nameOf(answer)) + " is none of " + question);
    }
    out_ << question << " -> " << nameOf(answer) << '\n';
    return answer;
}

std::optional<std::string> ScriptPrompts::chooseFolder(const FolderRequest& request) {
    return choose(Choice::Kind::folder, "folder " + quotedText(request.title) + ' ' + quotedText(request.initialPath) +
                                            ' ' + std::to_string(request.flags));
}

std::optional<std::string> ScriptPrompts::chooseFile(const FileRequest& request) {
    return choose(Choice::Kind::file, "file " + quotedText(request.title) + ' ' + quotedText(request.filter));
}

std::optional<std::string> ScriptPrompts::choose(Choice::Kind kind, const std::string& question) {
    std::optional<std::string> chosen;
    if (!choices_.empty()) {
        const Choice choice = std::move(choices_.front());
        choices_.pop_front();
        if (choice.kind != kind && choice.kind != Choice::Kind::cancel) {
            throw std::runtime_error("the answer " + quotedText(choice.path) + " is queued for another chooser than " +
                                     question);
        }
        if (choice.kind == kind) chosen = choice.path;
    }
    out_ << question << " -> " << quotedText(chosen.value_or("")) << '\n';
    return chosen;
}

}  // namespace kestedit
