#include "desktop/widgets/ChoiceButton.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <algorithm>
#include <type_traits>

#include "desktop/widgets/MnemonicSlack.h"

namespace kestedit {

namespace {

/// What the style calls the parts of the two kinds of button.
template <typename Button>
struct Parts {
    static constexpr bool isCheck = std::is_base_of_v<QCheckBox, Button>;
    static constexpr auto width = isCheck ? QStyle::PM_IndicatorWidth : QStyle::PM_ExclusiveIndicatorWidth;
    static constexpr auto height = isCheck ? QStyle::PM_IndicatorHeight : QStyle::PM_ExclusiveIndicatorHeight;
    static constexpr auto gap = isCheck ? QStyle::PM_CheckBoxLabelSpacing : QStyle::PM_RadioButtonLabelSpacing;
    static constexpr auto indicator = isCheck ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton;
};

constexpr int textFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;
constexpr int narrowestCaption = 24;  // in average characters

}  // namespace

template <typename Button>
ChoiceButton<Button>::ChoiceButton(QWidget* parent) : Button(parent) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    this->setSizePolicy(policy);
}

template <typename Button>
QSize ChoiceButton<Button>::indicatorSize() const {
    const QStyle& style = *this->style();
    return {style.pixelMetric(Parts<Button>::width, nullptr, this),
            style.pixelMetric(Parts<Button>::height, nullptr, this)};
}

template <typename Button>
int ChoiceButton<Button>::captionOffset() const {
    return indicatorSize().width() + this->style()->pixelMetric(Parts<Button>::gap, nullptr, this);
}

template <typename Button>
QSize ChoiceButton<Button>::captionSize(int width) const {
    return this->fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX), textFlags, this->text()).size();
}

template <typename Button>
QSize ChoiceButton<Button>::sizeHint() const {
    return Button::sizeHint() + QSize(mnemonicSlack(this->fontMetrics(), this->text()), 0);
}

template <typename Button>
QSize ChoiceButton<Button>::minimumSizeHint() const {
    const QSize whole = this->sizeHint();
    // Broken as far as it goes, the caption is as wide as its longest word.
    const int caption = std::max(captionSize(1).width(), this->fontMetrics().averageCharWidth() * narrowestCaption);
    return {std::min(whole.width(), captionOffset() + caption + 2), whole.height()};
}

template <typename Button>
int ChoiceButton<Button>::heightForWidth(int width) const {
    const QSize whole = this->sizeHint();
    if (width >= whole.width()) return whole.height();
    const int oneLine = this->fontMetrics().height();
    return captionSize(width - captionOffset()).height() + std::max(0, whole.height() - oneLine);
}

template <typename Button>
void ChoiceButton<Button>::paintEvent(QPaintEvent* event) {
    if (fitsOneLine()) return Button::paintEvent(event);

    QStylePainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const QRect area = this->rect();
    const int oneLine = this->fontMetrics().height();
    const int top = std::max(0, this->sizeHint().height() - oneLine) / 2;
    const QSize box = indicatorSize();

    QStyleOptionButton indicator = option;
    indicator.rect = QStyle::visualRect(this->layoutDirection(), area,
                                        QRect(QPoint(0, top + std::max(0, (oneLine - box.height()) / 2)), box));
    painter.drawPrimitive(Parts<Button>::indicator, indicator);

    const QRect caption = QStyle::visualRect(this->layoutDirection(), area, area.adjusted(captionOffset(), top, 0, 0));
    const bool underlined = this->style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
    const Qt::Alignment alignment = QStyle::visualAlignment(this->layoutDirection(), Qt::AlignLeft) | Qt::AlignTop;
    const int mnemonic = underlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    const int flags = static_cast<int>(alignment) | Qt::TextWordWrap | mnemonic;
    painter.drawItemText(caption, flags, this->palette(), this->isEnabled(), this->text(), QPalette::WindowText);

    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = caption.adjusted(-2, -1, 0, 0);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

template <typename Button>
bool ChoiceButton<Button>::hitButton(const QPoint& position) const {
    return fitsOneLine() ? Button::hitButton(position) : this->rect().contains(position);
}

template class ChoiceButton<QCheckBox>;
template class ChoiceButton<QRadioButton>;

}  // namespace kestedit
