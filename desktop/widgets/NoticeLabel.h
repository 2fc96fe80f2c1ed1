// A finding beside the fields that it is about: a framed text with the desktop's warning sign, so that it is never told
// by colour alone.
#pragma once

#include <QLabel>

namespace kestedit {

class NoticeLabel : public QLabel {
    Q_OBJECT

  public:
    explicit NoticeLabel(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kestedit
