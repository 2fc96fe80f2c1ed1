// The editor's window: the navigation list, the page in front, and the buttons below.
#pragma once

#include <QDialog>
#include <deque>
#include <map>

#include "desktop/Background.h"
#include "desktop/FormBinder.h"
#include "desktop/WindowMemory.h"
#include "editor/frmEdit.h"

class QLabel;
class QSplitter;
class QStackedWidget;

namespace kestedit {

class NodeList;
class PageArea;

/// Shows a loaded form and hands it the user's events. Pages are made when they are first in front. Closes when the
/// form has closed; fires the form's one-shot timer once it has been painted.
class FormWindow : public QDialog, private EventGate {
    Q_OBJECT

  public:
    /// `form` must outlive the window.
    explicit FormWindow(frmEdit& form);
    ~FormWindow() override;

    /// Brings the whole window to what the form says.
    void refresh();

    /// Makes every page of the form, also those that the view never shows.
    void makeAllPages();
    [[nodiscard]] const FormBinder& binder() const { return binder_; }
    /// The page in front, or null when the view has none.
    [[nodiscard]] PageArea* currentPage() const;

    void reject() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Tab follows the form's own sequence, whenever and wherever a page was made.
    bool focusNextPrevChild(bool next) override;

  private:
    [[nodiscard]] const frmEdit& form() const override { return form_; }
    using EventGate::hand;
    void hand(Event event, Binding* field) override;

    /// An event that waits until the one before it has been handled.
    struct Waiting {
        Event event;
        Binding* field;  // not owned
    };
    void handle(const Waiting& waiting);
    void takeOver(const Waiting& waiting);

    // make-up
    void buildFrame();
    void addShortcuts();
    PageArea& page(const EditorControl& frame);
    PageArea* makePage(std::string_view frame);
    void adopt(const EditorControl& frame, QWidget& page);
    // memory
    void recall();
    void remember();
    // showing
    void showFrontPage();
    void showFocus(const EditorControl* before);
    void tell(const std::string& reason, MessageIcon icon);
    void showHelp();

    frmEdit& form_;
    WindowMemory memory_;
    FormBinder binder_;
    std::map<std::string_view, PageArea*> pages_;  // children of the stack
    QSplitter* splitter_ = nullptr;                // these are children of the window
    QStackedWidget* stack_ = nullptr;
    NodeList* list_ = nullptr;
    bool handling_ = false;
    std::deque<Waiting> waiting_;
    Binding* refused_ = nullptr;  // whose event was refused last, perhaps; not owned
    bool painted_ = false;
    Background background_;  // goes first: it waits for looks at folders
};

}  // namespace kestedit
