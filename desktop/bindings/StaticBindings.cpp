// What stands around the fields: frames, labels, command buttons, the action picture, the navigation list.
#include <QLabel>
#include <QPushButton>

#include "desktop/Icons.h"
#include "desktop/Text.h"
#include "desktop/bindings/Kinds.h"
#include "desktop/bindings/NoticePlace.h"
#include "desktop/widgets/FieldLabel.h"
#include "desktop/widgets/NodeList.h"
#include "editor/ImageMeaning.h"
#include "editor/modSpinButtons.h"

namespace kestedit {

namespace {

class FrameBinding final : public Binding {
  public:
    using Binding::Binding;

  protected:
    // Which page is in front is the window's to show; a frame inside of a page comes and goes by itself.
    void showVisible(bool visible) override {
        if (control().Container) Binding::showVisible(visible);
    }
    bool placeNotice(NoticeLabel& notice) override { return placeNoticeInside(widget(), notice); }
    [[nodiscard]] std::vector<QWidget*> describedWidgets() const override { return {&widget()}; }
};

class LabelBinding final : public Binding {
  public:
    LabelBinding(EditorControl& control, QLabel& label, EventGate& gate)
        : Binding(control, label, gate), label_(label) {
        QStringList captions;
        for (const std::string& caption : UnitCaptions(gate.form(), control))
            captions += toQt(caption);
        if (auto* const unit = qobject_cast<FieldLabel*>(&label); unit && !captions.isEmpty()) {
            unit->setAlternatives(captions);
        }
    }

  protected:
    void showCaption(const QString& caption) override {
        label_.setText(label_.buddy() ? caption : withoutMnemonic(caption));
    }

  private:
    QLabel& label_;
};

class CommandBinding final : public Binding {
  public:
    CommandBinding(EditorControl& control, QPushButton& button, EventGate& gate)
        : Binding(control, button, gate), button_(button) {
        QObject::connect(&button, &QPushButton::clicked, &button,
                         [this] { hand([this](frmEdit& form) { form.onCommand(this->control()); }); });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&button_}; }

  protected:
    void showCaption(const QString& caption) override { button_.setText(caption); }

  private:
    QPushButton& button_;
};

class PictureBinding final : public Binding {
  public:
    PictureBinding(EditorControl& control, QLabel& label, EventGate& gate)
        : Binding(control, label, gate), label_(label) {}

  protected:
    void showContent() override {
        label_.setAccessibleName(toQt(control().ToolTipText));
        const QColor background = label_.palette().color(QPalette::Window);
        const int picture = gate().form().ActionPicture;
        if (picture == picture_ && isDark(background) == dark_) return;
        picture_ = picture;
        dark_ = isDark(background);
        label_.setPixmap(picture == 0 ? QPixmap()
                                      : icon("action-" + std::to_string(picture), background)
                                            .pixmap(label_.maximumSize(), label_.devicePixelRatio()));
    }

  private:
    QLabel& label_;
    int picture_ = 0;
    bool dark_ = false;
};

class NodeListBinding final : public Binding {
  public:
    NodeListBinding(EditorControl& control, NodeList& list, EventGate& gate)
        : Binding(control, list, gate), list_(list) {
        QObject::connect(&list, &NodeList::nodeChosen, &list,
                         [this](int position) { hand([position](frmEdit& form) { form.onNodeClicked(position); }); });
        QObject::connect(&list, &NodeList::arrowPressed, &list,
                         [this](int code) { hand([code](frmEdit& form) { form.onNodeKey(code); }); });
    }

    [[nodiscard]] std::vector<QWidget*> focusWidgets() const override { return {&list_}; }

  protected:
    void showContent() override {
        const frmEdit& form = gate().form();
        list_.show(form.Navigation,
                   [this](std::string_view image) { return toQt(imageMeaning(gate().form(), texts(), image)); });
    }

  private:
    NodeList& list_;
};

}  // namespace

std::unique_ptr<Binding> bindFrame(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<FrameBinding>(control, widget, gate);
}

std::unique_ptr<Binding> bindLabel(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<LabelBinding>(control, widgetAs<QLabel>(widget), gate);
}

std::unique_ptr<Binding> bindCommand(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<CommandBinding>(control, widgetAs<QPushButton>(widget), gate);
}

std::unique_ptr<Binding> bindPicture(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<PictureBinding>(control, widgetAs<QLabel>(widget), gate);
}

std::unique_ptr<Binding> bindNodeList(EditorControl& control, QWidget& widget, EventGate& gate) {
    return std::make_unique<NodeListBinding>(control, widgetAs<NodeList>(widget), gate);
}

}  // namespace kestedit
