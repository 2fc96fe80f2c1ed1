// The form's questions as windows of the desktop.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <string>
#include <string_view>

#include "platform/Prompts.h"

class QWidget;

namespace kestedit {

/// What stands behind the questions while a form is shown.
struct PromptHost {
    QWidget* window = nullptr;               ///< not owned; questions stand in front of it
    std::function<void()> refresh;           ///< brings the window up to date before it is covered
    std::function<QString(Answer)> caption;  ///< of a button; an empty text leaves the toolkit's own
};

/// Needs a QApplication whenever a question is put.
class DesktopPrompts final : public Prompts {
  public:
    /// Questions that come before there is a window stand alone.
    void serve(PromptHost host) { host_ = std::move(host); }

    Answer showMessage(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> chooseFolder(const FolderRequest& request) override;
    [[nodiscard]] std::optional<std::string> chooseFile(const FileRequest& request) override;
    void runNewFolder(dlgNewFolder& dialog) override;

  private:
    [[nodiscard]] QWidget* windowBehind() const;

    PromptHost host_;
};

/// "Programs (*.exe, *.bat)|*.exe;*.bat" as the toolkit's filters; a pattern list in the description is not said twice.
[[nodiscard]] QStringList nameFilters(std::string_view filter);

}  // namespace kestedit
