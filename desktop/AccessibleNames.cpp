#include "desktop/AccessibleNames.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStringList>
#include <QVariant>

#include "desktop/Text.h"

namespace kestedit {

namespace {

QString captionOf(const QWidget* widget) {
    if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
        return label->buddy() ? withoutMnemonic(label->text()) : label->text();
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) return withoutMnemonic(button->text());
    return {};
}

/// The caption of the first widget in `names` that can be seen; of the first at all when none can.
QString captionOfNamed(const QWidget& root, const QString& names) {
    QString any;
    for (const QString& name : names.split(u' ', Qt::SkipEmptyParts)) {
        const auto* const widget = root.findChild<QWidget*>(name);
        if (widget && !widget->isHidden()) return captionOf(widget);
        if (any.isEmpty()) any = captionOf(widget);
    }
    return any;
}

QString captionOfBuddy(const QWidget& input, const QWidget& root) {
    for (const auto* const label : root.findChildren<QLabel*>()) {
        if (label->buddy() == &input) return captionOf(label);
    }
    return {};
}

}  // namespace

QString accessibleNameOf(const QWidget& input, const QWidget& root) {
    QString name = captionOf(&input);
    if (name.isEmpty()) name = captionOfBuddy(input, root);
    if (name.isEmpty()) name = captionOfNamed(root, input.property("labelledBy").toString());
    const QString group = captionOfNamed(root, input.property("groupedBy").toString());
    return group.isEmpty() ? name : group + QLatin1String(": ") + name;
}

}  // namespace kestedit
