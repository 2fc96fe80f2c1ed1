// How the window is put together: its frame, its pages, its keys, and what it remembers.
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "desktop/FormWindow.h"
#include "desktop/pages/Pages.h"
#include "desktop/widgets/FlowLayout.h"
#include "desktop/widgets/NodeList.h"
#include "desktop/widgets/PageArea.h"

namespace kestedit {

namespace {

constexpr QSize ordinarySize{940, 660};
constexpr int pictureSize = 40;

QPushButton* commandButton(const char* name, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    // Return in a field must not save and close by accident.
    button->setAutoDefault(false);
    return button;
}

QFrame* line(QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::HLine);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

}  // namespace

void FormWindow::buildFrame() {
    list_ = new NodeList;
    list_->setObjectName(QStringLiteral("dxTreeList1"));
    stack_ = new QStackedWidget;
    stack_->addWidget(new QWidget);  // in front when the view has no page
    splitter_ = new QSplitter(this);
    splitter_->addWidget(list_);
    splitter_->addWidget(stack_);
    splitter_->setStretchFactor(1, 1);
    splitter_->setChildrenCollapsible(false);
    splitter_->setHandleWidth(1);

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setFixedSize(pictureSize, pictureSize);

    auto* buttons = new FlowLayout(nullptr, FlowLayout::Edge::trailing);
    buttons->setSpacing(8);
    for (const char* name : {"cmdPrevious", "cmdNext", "cmdCancel", "cmdSave"})
        buttons->addWidget(commandButton(name, this));

    auto* bottom = new QHBoxLayout;
    bottom->setContentsMargins(12, 8, 12, 8);
    bottom->setSpacing(12);
    bottom->addWidget(picture, 0, Qt::AlignVCenter);
    bottom->addLayout(buttons, 1);

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(splitter_, 1);
    whole->addWidget(line(this));
    whole->addLayout(bottom);
}

void FormWindow::addShortcuts() {
    const auto command = [this](const QKeySequence& keys, EditorControl& button) {
        auto* shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, &button] {
            hand([&button](frmEdit& form) { form.onCommand(button); }, binder_.bindingOf(button));
        });
    };
    command(QKeySequence(Qt::CTRL | Qt::Key_S), form_.cmdSave);
    command(QKeySequence(Qt::CTRL | Qt::Key_PageUp), form_.cmdPrevious);
    command(QKeySequence(Qt::CTRL | Qt::Key_PageDown), form_.cmdNext);
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, &FormWindow::showHelp);
}

// ---- pages

PageArea& FormWindow::page(const EditorControl& frame) {
    if (const auto found = pages_.find(frame.Base); found != pages_.end()) return *found->second;
    PageArea& area = *makePage(frame.Base);
    adopt(frame, *area.widget());
    return area;
}

PageArea* FormWindow::makePage(std::string_view frame) {
    const auto forms = pageForms();
    const auto form = std::ranges::find(forms, frame, &PageForm::frame);
    QWidget* const content = form->build().release();
    content->setProperty(pageProperty, true);
    auto* area = new PageArea(content, stack_);
    stack_->addWidget(area);
    pages_.emplace(form->frame, area);
    binder_.bind(*content);
    return area;
}

// A view may move a control to a page other than that of its .ui file: it goes to the place kept for it there.
void FormWindow::adopt(const EditorControl& frame, QWidget& page) {
    for (const EditorControl* control : form_.controls()) {
        if (control->Container != &frame) continue;
        const auto forms = pageForms();
        for (auto home = forms.begin(); !binder_.bindingOf(*control) && home != forms.end(); ++home) {
            if (!pages_.contains(home->frame)) makePage(home->frame);
        }
        const Binding* const binding = binder_.bindingOf(*control);
        if (!binding || page.isAncestorOf(&binding->widget())) continue;
        auto* const slot = page.findChild<QBoxLayout*>(page.objectName() + QLatin1String("_slot"));
        if (slot) slot->addWidget(&binding->widget());
    }
}

void FormWindow::makeAllPages() {
    for (const EditorControl* control : form_.controls()) {
        if (control->Kind == ControlKind::frame && !control->Container) page(*control);
    }
    refresh();
}

// ---- memory

// A new job starts at its name; a job that is opened again shows the page that the user looked at last.
void FormWindow::recall() {
    binder_.refresh();  // the list knows its width from its titles
    const QSize available = screen()->availableSize() - QSize(16, 48);
    const int listWidth = memory_.listWidth().value_or(list_->sizeHint().width());
    const QSize size = memory_.size().value_or(ordinarySize);
    resize(size.boundedTo(available).expandedTo(minimumSizeHint()));
    splitter_->setSizes({std::min(listWidth, width() * 2 / 5), width()});

    const auto page = memory_.page();
    if (form_.values().Mode != "Edit" || !page || *page >= static_cast<int>(form_.Navigation.Nodes.size())) return;
    if (*page != form_.Navigation.FocusedNode) form_.onNodeClicked(*page);
}

void FormWindow::remember() {
    if (!painted_) return;
    memory_.keep(isMaximized() ? normalGeometry().size() : size(), splitter_->sizes().front(),
                 form_.Navigation.FocusedNode);
}

}  // namespace kestedit
