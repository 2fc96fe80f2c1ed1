#include "desktop/widgets/FlowLayout.h"

#include <QLabel>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <cstddef>
#include <utility>

namespace kestedit {

namespace {

constexpr int pairGap = 12;

const QLabel* labelIn(const QLayoutItem& item) {
    return qobject_cast<const QLabel*>(item.widget());
}

bool isLabelOf(const QLayoutItem& label, const QLayoutItem& field) {
    return labelIn(label) && labelIn(label)->buddy() && labelIn(label)->buddy() == field.widget();
}

bool belongTogether(const QLayoutItem& one, const QLayoutItem& next) {
    return isLabelOf(one, next) || isLabelOf(next, one);
}

}  // namespace

FlowLayout::FlowLayout(QWidget* parent, Edge edge) : QLayout(parent), edge_(edge) {
    setContentsMargins(0, 0, 0, 0);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    QLayoutItem* const item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

// Hidden items do not count, so a row of hidden fields takes no room.
std::vector<std::vector<QLayoutItem*>> FlowLayout::chunks() const {
    std::vector<std::vector<QLayoutItem*>> chunks;
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        if (!chunks.empty() && belongTogether(*chunks.back().back(), *item)) {
            chunks.back().push_back(item.get());
        } else {
            chunks.push_back({item.get()});
        }
    }
    return chunks;
}

// Pairs of label and field stand apart from one another.
int FlowLayout::gapBetween(const QLayoutItem& one, const QLayoutItem& next) const {
    const bool pairs = !belongTogether(one, next) && (labelIn(one) || labelIn(next));
    return spacing() + (pairs ? pairGap : 0);
}

QSize FlowLayout::sizeOf(std::span<QLayoutItem* const> items) const {
    QSize size(0, 0);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const QSize hint = items[i]->sizeHint();
        const int gap = i == 0 ? 0 : gapBetween(*items[i - 1], *items[i]);
        size = QSize(size.width() + gap + hint.width(), std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FlowLayout::sizeHint() const {
    std::vector<QLayoutItem*> all;
    for (const auto& chunk : chunks())
        all.insert(all.end(), chunk.begin(), chunk.end());
    return sizeOf(all);
}

QSize FlowLayout::minimumSize() const {
    QSize widest;
    for (const auto& chunk : chunks())
        widest = widest.expandedTo(sizeOf(chunk));
    return widest;
}

void FlowLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    arrange(area, true);
}

int FlowLayout::arrange(const QRect& area, bool place) const {
    const auto parts = chunks();
    int top = area.top();
    for (auto first = parts.begin(); first != parts.end();) {
        std::vector<QLayoutItem*> line;
        for (; first != parts.end(); ++first) {
            std::vector<QLayoutItem*> longer = line;
            longer.insert(longer.end(), first->begin(), first->end());
            if (!line.empty() && sizeOf(longer).width() > area.width()) break;
            line = std::move(longer);
        }
        const QSize size = sizeOf(line);
        if (place) placeLine(area, line, QRect(QPoint(area.left(), top), size));
        top += size.height() + spacing();
    }
    return parts.empty() ? 0 : top - spacing() - area.top();
}

void FlowLayout::placeLine(const QRect& area, std::span<QLayoutItem* const> line, QRect room) const {
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    if (edge_ == Edge::trailing) room.moveRight(area.right());
    const QLayoutItem* before = nullptr;
    for (QLayoutItem* item : line) {
        if (before) room.setLeft(room.left() + gapBetween(*before, *item));
        const int width = item->sizeHint().width();
        item->setGeometry(QStyle::visualRect(direction, area, QRect(room.topLeft(), QSize(width, room.height()))));
        room.setLeft(room.left() + width);
        before = item;
    }
}

}  // namespace kestedit
