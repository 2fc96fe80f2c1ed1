#include "desktop/Text.h"

#include <QTextDocument>

namespace kestedit {

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) {
    return text.toStdString();
}

QString linesToQt(std::string_view text) {
    QString lines = toQt(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return lines;
}

QString withoutMnemonic(const QString& caption) {
    QString text;
    text.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == u'&' && ++i == caption.size()) break;
        text += caption[i];
    }
    return text;
}

QString toolTipText(std::string_view text) {
    const QString plain = toQt(text);
    return Qt::mightBeRichText(plain) ? QStringLiteral("<span>%1</span>").arg(plain.toHtmlEscaped()) : plain;
}

}  // namespace kestedit
