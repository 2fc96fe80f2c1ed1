#include "desktop/widgets/NodeList.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "desktop/Icons.h"
#include "desktop/Text.h"

namespace kestedit {

namespace {

constexpr int keyUp = 38;
constexpr int keyDown = 40;
constexpr int imageSize = 16;
constexpr int imageColumnWidth = 32;
constexpr int rowPadding = 10;
constexpr int edge = 8;

/// Lines with air between them, as high as their titles need at the column's width.
class RowDelegate final : public QStyledItemDelegate {
  public:
    explicit RowDelegate(NodeList& list) : QStyledItemDelegate(&list), list_(list) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int room = std::max(1, list_.columnWidth(0) - list_.indentation() - 2 * textMargin());
        const QRect title = option.fontMetrics.boundingRect(QRect(0, 0, room, QWIDGETSIZE_MAX), Qt::TextWordWrap,
                                                            index.siblingAtColumn(0).data().toString());
        return {room, std::max(title.height(), imageSize + 2) + rowPadding};
    }

  private:
    [[nodiscard]] int textMargin() const {
        return list_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list_) + 1;
    }

    NodeList& list_;
};

QColor colourOf(std::int64_t blueGreenRed) {
    const auto part = [&](int shift) { return static_cast<int>((blueGreenRed >> shift) & 0xFF); };
    return {part(0), part(8), part(16)};
}

/// Nobody has chosen other colours than those the product starts with.
bool hasOrdinaryColours(const NavigationList& list) {
    const NavigationList ordinary;
    return list.RowColour == ordinary.RowColour && list.RowTextColour == ordinary.RowTextColour;
}

}  // namespace

NodeList::NodeList(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(2);
    setHeaderHidden(true);
    setItemsExpandable(false);
    setIndentation(edge);
    setViewportMargins(0, edge, 0, edge);
    setUniformRowHeights(false);
    setWordWrap(true);
    setTextElideMode(Qt::ElideNone);
    setAllColumnsShowFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setIconSize({imageSize, imageSize});
    setItemDelegate(new RowDelegate(*this));
    setFrameShape(QFrame::NoFrame);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(imageColumnWidth);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::Fixed);
    header()->resizeSection(1, imageColumnWidth);
}

void NodeList::show(const NavigationList& list, const std::function<QString(std::string_view)>& meaning) {
    const bool newImages =
        shown_.ShowIcons != list.ShowIcons || shown_.Nodes.size() != list.Nodes.size() ||
        !std::ranges::equal(shown_.Nodes, list.Nodes, {}, &NavigationNode::Image, &NavigationNode::Image);
    const bool newColours =
        shown_.RowColour != list.RowColour || shown_.RowTextColour != list.RowTextColour || shown_.Nodes.empty();
    shown_ = list;
    meaning_ = meaning;

    while (topLevelItemCount() < static_cast<int>(list.Nodes.size()))
        addTopLevelItem(new QTreeWidgetItem(this));
    int row = 0;
    for (const NavigationNode& node : list.Nodes) {
        QTreeWidgetItem* const item = topLevelItem(row++);
        const QString title = toQt(node.Title);
        if (item->text(0) != title) item->setText(0, title);
    }
    if (newColours) showColours();
    if (newImages || newColours) showImages();
    if (currentRow() != list.FocusedNode) setCurrentItem(topLevelItem(list.FocusedNode));
}

int NodeList::widthFor(int title) const {
    const int frame = imageColumnWidth + edge + 12;
    return title + frame + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

QSize NodeList::sizeHint() const {
    int widest = 0;
    for (const NavigationNode& node : shown_.Nodes)
        widest = std::max(widest, fontMetrics().horizontalAdvance(toQt(node.Title)));
    return {widthFor(widest), 300};
}

QSize NodeList::minimumSizeHint() const {
    int widest = 0;
    for (const NavigationNode& node : shown_.Nodes) {
        for (const QString& word : toQt(node.Title).split(u' '))
            widest = std::max(widest, fontMetrics().horizontalAdvance(word));
    }
    return {widthFor(widest), 80};
}

void NodeList::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        if (event->key() == Qt::Key_Up) return emit arrowPressed(keyUp);
        if (event->key() == Qt::Key_Down) return emit arrowPressed(keyDown);
    }
    const int before = currentRow();
    QTreeWidget::keyPressEvent(event);
    // Home, End, page keys and first letters move in the list; the page is to follow.
    if (currentRow() != before) emit nodeChosen(currentRow());
}

void NodeList::mousePressEvent(QMouseEvent* event) {
    QTreeWidget::mousePressEvent(event);
    const QModelIndex line = indexAt(event->position().toPoint());
    if (line.isValid() && event->button() == Qt::LeftButton) emit nodeChosen(line.row());
}

void NodeList::changeEvent(QEvent* event) {
    QTreeWidget::changeEvent(event);
    const bool look = event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange;
    if (look && !colouring_) QMetaObject::invokeMethod(this, &NodeList::showLook, Qt::QueuedConnection);
}

void NodeList::showLook() {
    showColours();
    showImages();
}

void NodeList::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    scheduleDelayedItemsLayout();  // titles break at the new width
}

// Background and text are one setting. The colours that the product starts with give way to a dark desktop's own.
void NodeList::showColours() {
    if (colouring_) return;
    colouring_ = true;
    QPalette colours;  // what it does not say stays the desktop's, and follows it
    if (!hasOrdinaryColours(shown_) || !isDark(QApplication::palette(this).color(QPalette::Base))) {
        colours.setColor(QPalette::Base, colourOf(shown_.RowColour));
        colours.setColor(QPalette::Text, colourOf(shown_.RowTextColour));
    }
    setPalette(colours);
    colouring_ = false;
}

// A style tints the images of a selected line with its colour, until hardly anything is left of them: these are their
// own, of the family that stands out from that colour.
QIcon NodeList::imageOf(std::string_view node) const {
    const std::string name = "node-" + std::string{node};
    QIcon image = icon(name, palette().color(QPalette::Base));
    const QIcon selected = icon(name, palette().color(QPalette::Highlight));
    image.addPixmap(selected.pixmap({imageSize, imageSize}, devicePixelRatioF()), QIcon::Selected);
    return image;
}

void NodeList::showImages() {
    setColumnHidden(1, !shown_.ShowIcons);
    int row = 0;
    for (const NavigationNode& node : shown_.Nodes) {
        QTreeWidgetItem* const item = topLevelItem(row++);
        if (!item) return;
        const QString meaning = node.Image.empty() || !meaning_ ? QString() : meaning_(node.Image);
        item->setIcon(1, node.Image.empty() ? QIcon() : imageOf(node.Image));
        item->setToolTip(1, meaning);
        item->setData(1, Qt::AccessibleTextRole, meaning);
        item->setData(0, Qt::AccessibleDescriptionRole, meaning);
    }
}

int NodeList::currentRow() const {
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

}  // namespace kestedit
