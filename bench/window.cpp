// What the window costs: from Show to its first paint, beside a plain dialog with as many widgets of the same kinds,
// and from a click on a node to its page on the screen. Runs without a display unless QT_QPA_PLATFORM says otherwise.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimeEdit>
#include <QTreeWidget>
#include <benchmark/benchmark.h>
#include <memory>

#include "bench/Editor.h"
#include "desktop/FormWindow.h"

namespace {

using namespace kestedit;
using bench::Editor;

/// Tells when a window has painted itself.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget& window) { window.installEventFilter(this); }
    void wait() const {
        while (!painted_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

  private:
    bool painted_ = false;
};

/// The toolkit's own widget for a control.
QWidget* plainWidget(const EditorControl& control) {
    const QString caption = QString::fromStdString(control.Caption);
    switch (control.Kind) {
        case ControlKind::frame:
            return new QGroupBox;
        case ControlKind::label:
        case ControlKind::picture:
            return new QLabel(caption);
        case ControlKind::command:
            return new QPushButton(caption);
        case ControlKind::nodeList:
            return new QTreeWidget;
        case ControlKind::check:
            return new QCheckBox(caption);
        case ControlKind::option:
            return new QRadioButton(caption);
        case ControlKind::text:
        case ControlKind::password:
        case ControlKind::path:
            return new QLineEdit;
        case ControlKind::memo:
            return new QPlainTextEdit;
        case ControlKind::pick:
            return new QComboBox;
        case ControlKind::number:
        case ControlKind::spin:
            return new QSpinBox;
        case ControlKind::date:
            return new QDateEdit;
        case ControlKind::time:
            return new QTimeEdit;
    }
    return nullptr;
}

void plainDialog(benchmark::State& state) {
    Editor editor;
    editor.show("New", [&state](frmEdit& form) {
        for (auto round : state) {
            QDialog dialog;
            auto* const grid = new QGridLayout(&dialog);
            int place = 0;
            for (const EditorControl* control : form.controls()) {
                grid->addWidget(plainWidget(*control), place / 8, place % 8);
                ++place;
            }
            const PaintWatch watch(dialog);
            dialog.show();
            watch.wait();
        }
    });
}
BENCHMARK(plainDialog)->Unit(benchmark::kMillisecond);

// From the call of Show, so the form's own start-up is a part of it.
void editorWindow(benchmark::State& state) {
    Editor editor;
    for (auto round : state) {
        editor.show("New", [](frmEdit& form) {
            FormWindow window(form);
            const PaintWatch watch(window);
            window.show();
            watch.wait();
        });
    }
}
BENCHMARK(editorWindow)->Unit(benchmark::kMillisecond);

/// One click on the node at the given position, with its page already made or not.
void pageTurn(benchmark::State& state) {
    const bool made = state.range(1) != 0;
    Editor editor;
    editor.show("New", [&](frmEdit& form) {
        std::unique_ptr<FormWindow> window;
        for (auto round : state) {
            state.PauseTiming();
            if (!window || !made) {
                window = std::make_unique<FormWindow>(form);
                if (made) window->makeAllPages();
                window->show();
            }
            form.onNodeClicked(0);
            window->refresh();
            QCoreApplication::processEvents();
            auto& list = dynamic_cast<QTreeWidget&>(window->binder().bindingOf(form.dxTreeList1)->widget());
            const QPoint node = list.visualItemRect(list.topLevelItem(static_cast<int>(state.range(0)))).center();
            state.ResumeTiming();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, node);
            QCoreApplication::processEvents();
        }
    });
}
BENCHMARK(pageTurn)
    ->ArgNames({"node", "made"})
    ->ArgsProduct({{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
