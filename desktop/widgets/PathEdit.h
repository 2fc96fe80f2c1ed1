// A path with its inner buttons: 0 browses, 1 creates a folder.
#pragma once

#include "desktop/widgets/ButtonedEdit.h"

namespace kestedit {

class PathEdit : public ButtonedEdit {
    Q_OBJECT
    Q_PROPERTY(bool newFolderButton READ newFolderButton WRITE setNewFolderButton)

  public:
    explicit PathEdit(QWidget* parent = nullptr);

    [[nodiscard]] bool newFolderButton() const { return !newFolder_.isHidden(); }
    void setNewFolderButton(bool wanted) { newFolder_.setHidden(!wanted); }

    /// What the two buttons do, as tool tips.
    void setButtonTexts(const QString& browse, const QString& newFolder);

  signals:
    void buttonPressed(int button);

  private:
    QToolButton& browse_;
    QToolButton& newFolder_;
};

}  // namespace kestedit
