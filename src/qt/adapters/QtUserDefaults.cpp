#include "qt/adapters/QtUserDefaults.h"

#include "pane/Product.h"
#include "protocol/Value.h"

#include <QFile>
#include <QLatin1String>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <utility>

namespace zarvil {

static Q_LOGGING_CATEGORY(defaultsLog, "zarvil.defaults", QtInfoMsg)

    QtUserDefaults::QtUserDefaults(const QString& path)
    : settings_(path, QSettings::IniFormat) {
    // The lines are parsed only when they are asked for; their faults must show before a write.
    [[maybe_unused]] const auto keys = settings_.allKeys();
    if (settings_.status() == QSettings::FormatError)
        keepCorruptFile();
    if (settings_.status() != QSettings::NoError)
        reportFailure();
}

QString QtUserDefaults::userFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
           QString::fromUtf8(product::maker) + '/' + QString::fromUtf8(product::preferencesName) +
           ".ini";
}

bool QtUserDefaults::boolForKey(std::string_view key) const {
    return Value(settings_.value(QString::fromUtf8(key)).toString().toStdString()).boolValue();
}

void QtUserDefaults::setBool(bool value, std::string_view key) {
    settings_.setValue(QString::fromUtf8(key), value);
    settings_.sync();
    if (settings_.status() != QSettings::NoError)
        reportFailure();
}

/// The next write drops the lines that could not be read; a copy beside the file keeps them.
void QtUserDefaults::keepCorruptFile() {
    const QString copy = settings_.fileName() + ".corrupt";
    QFile::remove(copy);
    QFile::copy(settings_.fileName(), copy);
}

void QtUserDefaults::reportFailure() {
    if (std::exchange(reported_, true))
        return;
    const bool unreadable = settings_.status() == QSettings::FormatError;
    qCWarning(defaultsLog).noquote()
        << (unreadable ? "Part of the preferences file cannot be read:"
                       : "The preferences file cannot be read or written:")
        << settings_.fileName();
}

} // namespace zarvil
