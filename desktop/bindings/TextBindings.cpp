// Fields that hold text: one line, password, path, memo.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QTextDocument>

#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"
#include "desktop/bindings/LineText.h"
#include "desktop/widgets/PasswordEdit.h"
#include "desktop/widgets/PathEdit.h"
#include "i18n/Texts.h"

namespace kestedit {

namespace {

/// Line ends as "\n"; a blank that does not break stays one, unlike in the editor's own plain text.
QString textOf(const QPlainTextEdit& memo) {
    QString text = memo.document()->toRawText();
    for (const QChar end : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        text.replace(end, u'\n');
    return text;
}

/// While the form handles a change it may ask the user, and what it asks about stays in view until the answer.
class Asking {
  public:
    explicit Asking(bool& flag) : flag_(flag) { flag_ = true; }
    ~Asking() { flag_ = false; }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

  private:
    bool& flag_;
};

/// A line of text; the line may be a part of the widget.
class LineBinding : public Binding {
  public:
    LineBinding(EditorControl& control, QWidget& widget, QLineEdit& line, EventGate& gate)
        : Binding(control, widget, gate), line_(line) {
        QObject::connect(&line, &QLineEdit::textEdited, &line, [this](const QString& text) {
            userChanged_ = true;
            hand([this, typed = fromQt(text)](frmEdit& form) {
                const Asking asking(asking_);
                form.onTextTyped(this->control(), typed);
            });
            userChanged_ = false;
        });
        QObject::connect(&line, &QLineEdit::returnPressed, &line,
                         [this] { hand([this](frmEdit& form) { form.onEditingFinished(this->control()); }); });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&line_}; }
    [[nodiscard]] bool isField() const override { return true; }

  protected:
    void showReadOnly(bool readOnly) override { line_.setReadOnly(readOnly); }

    void showContent() override {
        if (asking_) return;
        const QString wanted = toQt(control().text());
        if (first_) {
            line_.setText(wanted);
            line_.setCursorPosition(0);
        } else if (line_.text() != wanted) {
            userChanged_ ? replaceUserChange(line_, wanted) : replaceText(line_, wanted);
        }
        first_ = false;
    }

  private:
    QLineEdit& line_;
    bool first_ = true;
    bool userChanged_ = false;
    bool asking_ = false;
};

class PasswordBinding final : public LineBinding {
  public:
    PasswordBinding(EditorControl& control, PasswordEdit& edit, EventGate& gate)
        : LineBinding(control, edit, edit.line(), gate), edit_(edit) {
        edit.setButtonTexts(toQt(textOf(texts(), TextId::showPassword)), toQt(textOf(texts(), TextId::hidePassword)));
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override {
        return {&edit_.line(), edit_.buttons().front()};
    }

  private:
    PasswordEdit& edit_;
};

class PathBinding final : public LineBinding {
  public:
    PathBinding(EditorControl& control, PathEdit& edit, EventGate& gate)
        : LineBinding(control, edit, edit.line(), gate), edit_(edit) {
        edit.setButtonTexts(toQt(textOf(texts(), TextId::browseButton)),
                            toQt(textOf(texts(), TextId::newFolderButton)));
        QObject::connect(&edit, &PathEdit::buttonPressed, &edit, [this](int button) {
            // The user has just left a chooser and looks for what became of the choice: a refusal is a message.
            this->gate().hand([this, button](frmEdit& form) { form.onInnerButton(this->control(), button); });
        });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override {
        std::vector<QWidget*> widgets{&edit_.line()};
        widgets.insert(widgets.end(), edit_.buttons().begin(), edit_.buttons().end());
        return widgets;
    }

  private:
    PathEdit& edit_;
};

class MemoBinding final : public Binding {
  public:
    MemoBinding(EditorControl& control, QPlainTextEdit& memo, EventGate& gate)
        : Binding(control, memo, gate), memo_(memo) {
        QObject::connect(&memo, &QPlainTextEdit::textChanged, &memo, [this] {
            userChanged_ = true;
            hand([this, typed = fromQt(textOf(memo_))](frmEdit& form) {
                const Asking asking(asking_);
                form.onTextTyped(this->control(), typed);
            });
            userChanged_ = false;
        });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&memo_}; }
    [[nodiscard]] bool isField() const override { return true; }

  protected:
    void showReadOnly(bool readOnly) override { memo_.setReadOnly(readOnly); }

    void showContent() override {
        if (asking_) return;
        const QString wanted = linesToQt(control().text());
        if (textOf(memo_) == wanted) return;
        const QSignalBlocker quiet(memo_);
        // A refused change is taken back; undo goes on from the text before it.
        if (userChanged_) memo_.undo();
        if (textOf(memo_) != wanted) memo_.setPlainText(wanted);
    }

  private:
    QPlainTextEdit& memo_;
    bool userChanged_ = false;
    bool asking_ = false;
};

}  // namespace

std::unique_ptr<Binding> bindText(EditorControl& control, QWidget& widget, EventGate& gate) {
    auto& line = widgetAs<QLineEdit>(widget);
    return std::make_unique<LineBinding>(control, line, line, gate);
}

std::unique_ptr<Binding> bindPassword(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<PasswordBinding>(control, widgetAs<PasswordEdit>(widget), gate);
}

std::unique_ptr<Binding> bindPath(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<PathBinding>(control, widgetAs<PathEdit>(widget), gate);
}

std::unique_ptr<Binding> bindMemo(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<MemoBinding>(control, widgetAs<QPlainTextEdit>(widget), gate);
}

}  // namespace kestedit
