#include "desktop/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/Icons.h"
#include "desktop/Text.h"
#include "desktop/pages/Pages.h"
#include "desktop/widgets/NodeList.h"
#include "desktop/widgets/PageArea.h"
#include "i18n/Texts.h"

namespace kestedit {

namespace {

/// Sets a flag for the time of a scope.
class While {
  public:
    explicit While(bool& flag) : flag_(flag) { flag_ = true; }
    ~While() { flag_ = false; }
    While(const While&) = delete;
    While& operator=(const While&) = delete;

  private:
    bool& flag_;
};

bool isPageFrame(const EditorControl& control) {
    return control.Kind == ControlKind::frame && !control.Container;
}

}  // namespace

FormWindow::FormWindow(frmEdit& form) : form_(form), memory_(form.platform().settings, form.ViewLevel), binder_(*this) {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                   Qt::WindowCloseButtonHint);
    setWindowModality(Qt::ApplicationModal);
    setWindowIcon(programIcon());
    buildFrame();
    addShortcuts();
    binder_.bind(*this);
    form_.lookInBackground([this](const auto& look, const auto& show) {
        background_.run(look, [this, show] {
            show();
            refresh();
        });
    });
    recall();
    refresh();
    showFocus(nullptr);
}

FormWindow::~FormWindow() {
    form_.lookInBackground({});
    remember();
}

// ---- events

// What the user did is handed over one after the other: a command that turns the page takes the focus from a field, and
// the end of that editing counts as much as the command.
void FormWindow::hand(Event event, Binding* field) {
    waiting_.push_back({std::move(event), field});
    if (handling_) return;
    const While handling(handling_);
    while (!waiting_.empty() && form_.isOpen()) {
        const Waiting next = std::move(waiting_.front());
        waiting_.pop_front();
        handle(next);
    }
    waiting_.clear();
}

void FormWindow::handle(const Waiting& waiting) {
    const EditorControl* const focused = form_.FocusedControl;
    PageArea* const area = currentPage();
    QWidget* const anchor = area && area->isAncestorOf(focusWidget()) ? focusWidget() : nullptr;
    const int place = anchor ? area->placeOf(*anchor) : 0;

    takeOver(waiting);
    if (!form_.isOpen()) return done(Accepted);
    refresh();
    if (anchor && area == currentPage() && anchor->isVisible()) area->bringBack(*anchor, place);
    showFocus(focused);
}

void FormWindow::takeOver(const Waiting& waiting) {
    std::string refusal;
    const bool wasUtf8 = form_.StoredAsUtf8;
    try {
        waiting.event(form_);
    } catch (const EventRefused& refused) {
        refusal = refused.what();
    } catch (const std::exception& failure) {
        refresh();
        tell(failure.what(), MessageIcon::error);
    }
    // It stands until the user has done something at another field, has emptied this one, or has made the text welcome:
    // typing on after a letter that was not taken does not take the reason away.
    const bool typesOn = refusal.empty() && refused_ == waiting.field && form_.StoredAsUtf8 == wasUtf8 &&
                         waiting.field && !waiting.field->control().isEmpty();
    if (waiting.field && !typesOn) {
        if (refused_) refused_->setRefusal({});
        waiting.field->setRefusal(refusal);
        refused_ = waiting.field;
    }
    if (refusal.empty()) return;
    refresh();
    if (!waiting.field || !waiting.field->showsNotice()) tell(refusal, MessageIcon::information);
}

void FormWindow::reject() {
    if (!handling_) hand([](frmEdit& form) { form.onCommand(form.cmdCancel); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (!handling_) hand([](frmEdit& form) { form.onCloseBox(); });
    event->setAccepted(!form_.isOpen());
}

void FormWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    // Queued: the widgets inside hear of the new colours after the window.
    if (event->type() == QEvent::PaletteChange && stack_) {
        QMetaObject::invokeMethod(this, &FormWindow::refresh, Qt::QueuedConnection);
    }
}

void FormWindow::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    if (std::exchange(painted_, true)) return;
    QTimer::singleShot(0, this, [this] { hand([](frmEdit& form) { form.onTimer(); }); });
}

bool FormWindow::focusNextPrevChild(bool next) {
    std::vector<QWidget*> stops = binder_.tabSequence();
    std::erase_if(stops, [this](const QWidget* widget) {
        const bool stop = widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
        return !stop && widget != focusWidget();
    });
    if (!next) std::ranges::reverse(stops);
    if (stops.empty()) return false;
    const auto present = std::ranges::find(stops, focusWidget());
    const auto following =
        present == stops.end() || std::next(present) == stops.end() ? stops.begin() : std::next(present);
    (*following)->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void FormWindow::tell(const std::string& reason, MessageIcon icon) {
    static_cast<void>(form_.platform().prompts.showMessage({form_.values().AppTitle, reason, Buttons::ok, icon}));
}

void FormWindow::showHelp() {
    hand([this](frmEdit& form) {
        const auto file = form.onHelpKey();
        if (!file || QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(*file)))) return;
        tell(textOf(form.texts(), TextId::helpNotOpened) + "\r\n" + *file, MessageIcon::error);
    });
}

// ---- showing

void FormWindow::refresh() {
    showFrontPage();
    binder_.refresh();
    if (const QString title = toQt(form_.Caption); windowTitle() != title) setWindowTitle(title);
}

void FormWindow::showFrontPage() {
    const auto& controls = form_.controls();
    const auto front = std::ranges::find_if(
        controls, [](const EditorControl* control) { return isPageFrame(*control) && control->Visible; });
    if (front == controls.end()) {
        stack_->setCurrentIndex(0);
        return;
    }
    PageArea& area = page(**front);
    stack_->setCurrentWidget(&area);
    if (auto* const heading = area.findChild<QLabel*>(QStringLiteral("pageHeading"))) {
        const auto& list = form_.Navigation;
        const QString title = toQt(list.Nodes.at(static_cast<std::size_t>(list.FocusedNode)).Title);
        if (heading->text() != title) heading->setText(title);
    }
}

PageArea* FormWindow::currentPage() const {
    return qobject_cast<PageArea*>(stack_->currentWidget());
}

// The form moves the focus when it wants to; otherwise it hears where the toolkit has put it, for example because the
// field that had it has been hidden.
void FormWindow::showFocus(const EditorControl* before) {
    const EditorControl* const wanted = form_.FocusedControl;
    Binding* const present = binder_.bindingOf(focusWidget());
    if (wanted && wanted != before) {
        Binding* const target = binder_.bindingOf(*wanted);
        if (!target || target == present || target->focusWidgets().empty()) return;
        QWidget* const widget = target->focusWidgets().front();
        widget->setFocus(Qt::OtherFocusReason);
        PageArea* const area = currentPage();
        if (isVisible() && area && area->isAncestorOf(widget)) area->ensureWidgetVisible(widget);
    } else if (present && &present->control() != wanted) {
        form_.onFocused(present->control());
    }
}

}  // namespace kestedit
