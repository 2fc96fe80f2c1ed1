// A line of text with buttons at its end that belong to it.
#pragma once

#include <QLineEdit>
#include <QToolButton>
#include <QWidget>
#include <string>
#include <utility>
#include <vector>

namespace kestedit {

/// Takes the focus for its line; the buttons follow it in the tab sequence.
class ButtonedEdit : public QWidget {
    Q_OBJECT

  public:
    explicit ButtonedEdit(QWidget* parent = nullptr);

    [[nodiscard]] QLineEdit& line() const { return *line_; }
    [[nodiscard]] const std::vector<QToolButton*>& buttons() const { return buttons_; }

  protected:
    QToolButton& addButton(const char* picture);
    void setPicture(QToolButton& button, const char* picture);
    void changeEvent(QEvent* event) override;

  private:
    void showPictures();

    QLineEdit* line_;  // a child, like the buttons
    std::vector<QToolButton*> buttons_;
};

}  // namespace kestedit
