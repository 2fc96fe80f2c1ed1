// One page of the form, which scrolls where it does not fit.
#pragma once

#include <QScrollArea>

namespace kestedit {

class PageArea : public QScrollArea {
    Q_OBJECT

  public:
    /// Takes `page` over.
    explicit PageArea(QWidget* page, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override { return {160, 120}; }

    /// Where `part` of the page stands on the screen, from the area's upper edge.
    [[nodiscard]] int placeOf(const QWidget& part) const;
    /// Scrolls so that `part` stands at `place` again after the page has changed: what the user is clicking stays under
    /// the pointer. A page that has become too short for that keeps room below its end, and gives it back as it is
    /// scrolled up or left.
    void bringBack(const QWidget& part, int place);

  protected:
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void giveBack();
    void limitWidth();
};

}  // namespace kestedit
