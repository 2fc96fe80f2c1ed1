#include "desktop/widgets/PageArea.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace kestedit {

namespace {

constexpr int widestPage = 96;  // in average characters: longer lines read badly

void layOutNow() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

}  // namespace

PageArea::PageArea(QWidget* page, QWidget* parent) : QScrollArea(parent) {
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(page);
    limitWidth();
}

int PageArea::placeOf(const QWidget& part) const {
    return part.mapTo(viewport(), QPoint(0, 0)).y();
}

void PageArea::bringBack(const QWidget& part, int place) {
    layOutNow();
    const int wanted = verticalScrollBar()->value() + placeOf(part) - place;
    if (wanted > verticalScrollBar()->maximum()) {
        widget()->setMinimumHeight(wanted + viewport()->height());
        layOutNow();
    }
    verticalScrollBar()->setValue(wanted);
}

void PageArea::hideEvent(QHideEvent* event) {
    widget()->setMinimumHeight(0);
    QScrollArea::hideEvent(event);
}

void PageArea::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange && widget()) limitWidth();
}

void PageArea::limitWidth() {
    widget()->setMaximumWidth(fontMetrics().averageCharWidth() * widestPage);
}

}  // namespace kestedit
