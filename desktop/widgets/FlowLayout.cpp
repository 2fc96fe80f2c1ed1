#include "desktop/widgets/FlowLayout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cstddef>

namespace kestedit {

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    QLayoutItem* const item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

QSize FlowLayout::sizeHint() const {
    int width = -spacing();
    int height = 0;
    for (const auto& item : items_) {
        width += item->sizeHint().width() + spacing();
        height = std::max(height, item->sizeHint().height());
    }
    return {std::max(width, 0), height};
}

QSize FlowLayout::minimumSize() const {
    QSize widest;
    for (const auto& item : items_)
        widest = widest.expandedTo(item->minimumSize());
    return widest;
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    arrange(area, true);
}

int FlowLayout::arrange(const QRect& area, bool place) const {
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int top = area.top();
    for (auto first = items_.begin(); first != items_.end();) {
        int width = -spacing();
        int height = 0;
        auto last = first;
        for (; last != items_.end(); ++last) {
            const QSize size = (*last)->sizeHint();
            if (last != first && width + spacing() + size.width() > area.width()) break;
            width += spacing() + size.width();
            height = std::max(height, size.height());
        }
        int left = area.right() + 1 - width;
        for (; first != last; ++first) {
            const QSize size = (*first)->sizeHint();
            if (place)
                (*first)->setGeometry(QStyle::visualRect(direction, area, QRect(left, top, size.width(), height)));
            left += size.width() + spacing();
        }
        top += height + spacing();
    }
    return items_.empty() ? 0 : top - spacing() - area.top();
}

}  // namespace kestedit
