// A page's title or the title of a section.
#pragma once

#include <QLabel>

namespace kestedit {

/// Level 1 titles a page, 2 a section, 3 a part of a section. Sizes follow the application's font, also when it
/// changes. The space above a section belongs to its title, so that a hidden section leaves no gap.
class Heading : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int level READ level WRITE setLevel)

  public:
    explicit Heading(QWidget* parent = nullptr);

    [[nodiscard]] int level() const { return level_; }
    void setLevel(int level);

  protected:
    bool event(QEvent* event) override;

  private:
    void adjustFont();

    int level_ = 1;
};

}  // namespace kestedit
