// The window of the small dialog that creates a folder.
#pragma once

#include <QDialog>
#include <functional>

#include "editor/dlgNewFolder.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kestedit {

/// Shows a loaded dialog and hands it the user's events; closes when the dialog has closed.
class NewFolderWindow : public QDialog {
    Q_OBJECT

  public:
    /// `dialog` must outlive the window.
    NewFolderWindow(dlgNewFolder& dialog, QWidget* parent);

    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void hand(const std::function<void(dlgNewFolder&)>& event);
    void refresh();
    void showColour();

    dlgNewFolder& dialog_;
    QLineEdit* name_;  // children of the window
    QPushButton* create_;
    QPushButton* cancel_;
};

}  // namespace kestedit
