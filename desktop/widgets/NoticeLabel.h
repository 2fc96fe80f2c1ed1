// A finding beside the fields that it is about: a framed text with the desktop's warning sign, so that it is never told
// by colour alone.
#pragma once

#include <QLabel>

namespace kestedit {

class NoticeLabel : public QLabel {
    Q_OBJECT

  public:
    explicit NoticeLabel(QWidget* parent = nullptr);
    /// Whether the sign warns, as at first, or only informs.
    void setWarns(bool warns);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool warns_ = true;
};

}  // namespace kestedit
