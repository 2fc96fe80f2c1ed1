#include "desktop/Icons.h"

#include "desktop/Text.h"

// Resources of a static library are not there before this has run; it must stand outside every namespace.
static void registerIcons() {
    Q_INIT_RESOURCE(icons);
    Q_INIT_RESOURCE(fields);
}

namespace kestedit {

namespace {

QIcon picture(const QString& name) {
    static const bool registered = (registerIcons(), true);
    Q_UNUSED(registered);
    return QIcon(QStringLiteral(":/icons/%1.svg").arg(name));
}

}  // namespace

bool isDark(const QColor& background) {
    return qGray(background.rgb()) < 128;
}

QIcon icon(std::string_view name, const QColor& background) {
    return picture(
        QStringLiteral("%1/%2").arg(isDark(background) ? QStringLiteral("dark") : QStringLiteral("light"), toQt(name)));
}

QIcon programIcon() {
    return picture(QStringLiteral("kestedit"));
}

}  // namespace kestedit
