#include "desktop/bindings/NoticePlace.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <vector>

#include "desktop/widgets/Heading.h"

namespace kestedit {

namespace {

struct Step {
    QLayout* layout;
    int index;
};

/// The layouts around `widget`, from the outermost to the one that holds it, each with the index of what it holds.
bool findWay(QLayout* layout, const QWidget& widget, std::vector<Step>& way) {
    for (int i = 0; layout && i < layout->count(); ++i) {
        QLayoutItem* const item = layout->itemAt(i);
        way.push_back({layout, i});
        if (item->widget() == &widget || findWay(item->layout(), widget, way)) return true;
        way.pop_back();
    }
    return false;
}

bool isRowFree(const QGridLayout& grid, int row) {
    for (int column = 0; column < grid.columnCount(); ++column)
        if (grid.itemAtPosition(row, column)) return false;
    return true;
}

bool addToColumn(QBoxLayout& column, int index, NoticeLabel& notice) {
    // Notices of one row stand in the order in which they came.
    while (index < column.count() && qobject_cast<NoticeLabel*>(column.itemAt(index)->widget()))
        ++index;
    column.insertWidget(index, &notice);
    return true;
}

/// Rows of a grid that holds fields have an empty row below each.
bool addToGrid(QGridLayout& grid, int index, NoticeLabel& notice) {
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid.getItemPosition(index, &row, &column, &rows, &columns);
    if (!isRowFree(grid, row + rows)) return false;
    grid.addWidget(&notice, row + rows, 0, 1, -1);
    return true;
}

}  // namespace

bool placeNoticeBelow(const QWidget& widget, NoticeLabel& notice) {
    const QWidget* const page = widget.parentWidget();
    if (!page) return false;
    const QString below = widget.property(noticeBelowProperty).toString();
    const QWidget* const other = below.isEmpty() ? nullptr : page->findChild<QWidget*>(below);
    std::vector<Step> way;
    if (!findWay(page->layout(), other ? *other : widget, way)) return false;
    for (; !way.empty(); way.pop_back()) {
        const auto [layout, index] = way.back();
        auto* const box = qobject_cast<QBoxLayout*>(layout);
        if (box && box->direction() == QBoxLayout::TopToBottom) return addToColumn(*box, index + 1, notice);
        auto* const grid = qobject_cast<QGridLayout*>(layout);
        if (grid && addToGrid(*grid, index, notice)) return true;
    }
    return false;
}

bool placeNoticeInside(const QWidget& frame, NoticeLabel& notice) {
    auto* const column = qobject_cast<QBoxLayout*>(frame.layout());
    if (!column) return false;
    const bool headed = column->count() > 0 && qobject_cast<Heading*>(column->itemAt(0)->widget());
    return addToColumn(*column, headed ? 1 : 0, notice);
}

}  // namespace kestedit
