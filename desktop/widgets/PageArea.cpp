#include "desktop/widgets/PageArea.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace kestedit {

namespace {

constexpr int widestPage = 96;  // in average characters: longer lines read badly

// A layout inside of another passes a change on by a request of its own, which waits for the next round.
void layOutNow() {
    for (int round = 0; round < 2; ++round)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

}  // namespace

PageArea::PageArea(QWidget* page, QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(page);
    limitWidth();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &PageArea::giveBack);
}

int PageArea::placeOf(const QWidget& part) const {
    return part.mapTo(viewport(), QPoint(0, 0)).y();
}

void PageArea::bringBack(const QWidget& part, int place) {
    widget()->setMinimumHeight(0);
    layOutNow();
    const int wanted = verticalScrollBar()->value() + placeOf(part) - place;
    if (wanted > verticalScrollBar()->maximum()) {
        widget()->setMinimumHeight(wanted + viewport()->height());
        layOutNow();
    }
    verticalScrollBar()->setValue(wanted);
}

// Only what is out of sight goes, so that nothing moves by it.
void PageArea::giveBack() {
    const int seen = verticalScrollBar()->value() + viewport()->height();
    if (widget()->minimumHeight() > seen) widget()->setMinimumHeight(seen);
}

void PageArea::hideEvent(QHideEvent* event) {
    widget()->setMinimumHeight(0);
    QScrollArea::hideEvent(event);
}

void PageArea::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && widget()) limitWidth();
}

// Runs ahead of the area's own layout, which follows the limit.
bool PageArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) limitWidth();
    return QScrollArea::eventFilter(watched, event);
}

// What cannot break may be wider than a line that reads well.
void PageArea::limitWidth() {
    const int width = std::max(fontMetrics().averageCharWidth() * widestPage, widget()->minimumSizeHint().width());
    if (widget()->maximumWidth() != width) widget()->setMaximumWidth(width);
}

}  // namespace kestedit
