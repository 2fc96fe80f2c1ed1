// The questions of the editor, answered by what a script has queued.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "platform/Prompts.h"

namespace kestedit {

/// Prints every question together with its answer. A message box that nothing was queued for, or whose buttons do not
/// give the queued answer, throws std::runtime_error; a chooser that nothing was queued for is cancelled.
class ScriptPrompts final : public Prompts {
  public:
    /// `out` must outlive the prompts.
    explicit ScriptPrompts(std::ostream& out) : out_(out) {}

    /// Hands the events of an open new-folder dialog to it until it has closed. Set before the editor opens.
    std::function<void(dlgNewFolder&)> newFolderRun;

    void queueAnswer(Answer answer) { answers_.push_back(answer); }
    void queueFolder(std::string path) { choices_.push_back({Choice::Kind::folder, std::move(path)}); }
    void queueFile(std::string path) { choices_.push_back({Choice::Kind::file, std::move(path)}); }
    void queueCancel() { choices_.push_back({Choice::Kind::cancel, {}}); }

    Answer showMessage(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(const FolderRequest& request) override;
    [[nodiscard]] std::optional<std::string> chooseFile(const FileRequest& request) override;
    void runNewFolder(dlgNewFolder& dialog) override { newFolderRun(dialog); }

  private:
    struct Choice {
        enum class Kind { folder, file, cancel };
        Kind kind;
        std::string path;
    };

    [[nodiscard]] std::optional<std::string> choose(Choice::Kind kind, const std::string& question);

    std::ostream& out_;
    std::deque<Answer> answers_;
    std::deque<Choice> choices_;
};

}  // namespace kestedit
