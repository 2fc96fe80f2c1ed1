// Replaces the file in a way of its own, by temporary file and rename and always synced.
#include <QSettings>
#include <QString>
#include <stdexcept>

#include "bench/peers/Peer.h"

namespace bench {

namespace {

QString path(const Name& name) {
    return QString::fromStdString(name.section + '/' + name.key);
}

std::size_t read(const std::filesystem::path& file, std::span<const Name> names) {
    const QSettings settings(QString::fromStdString(file.string()), QSettings::IniFormat);
    std::size_t sum = 0;
    for (const Name& name : names)
        sum += settings.value(path(name)).toString().toStdString().size();
    return sum;
}

void change(const std::filesystem::path& file, std::span<const Name> names, const std::string& value, bool) {
    QSettings settings(QString::fromStdString(file.string()), QSettings::IniFormat);
    const QString text = QString::fromStdString(value);
    for (const Name& name : names)
        settings.setValue(path(name), text);
    settings.sync();
    if (settings.status() != QSettings::NoError) throw std::runtime_error("QSettings does not save");
}

}  // namespace

const Peer qSettings{"QSettings", read, change};

}  // namespace bench
