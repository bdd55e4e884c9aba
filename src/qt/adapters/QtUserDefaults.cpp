#include "qt/adapters/QtUserDefaults.h"

#include "pane/Product.h"
#include "protocol/Value.h"

#include <QFile>
#include <QLoggingCategory>
#include <QStandardPaths>

namespace zarvil {

namespace {

Q_LOGGING_CATEGORY(defaultsLog, "zarvil.defaults", QtInfoMsg)

constexpr const char* section = "General";

} // namespace

QtUserDefaults::QtUserDefaults(const QString& path)
    : file_(QFile::encodeName(path).toStdString(), [path] {
          qCWarning(defaultsLog).noquote()
              << "The preferences file cannot be read or written:" << path;
      }) {}

QString QtUserDefaults::userFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
           QString::fromUtf8(product::maker) + '/' + QString::fromUtf8(product::preferencesName) +
           ".ini";
}

bool QtUserDefaults::boolForKey(std::string_view key) const {
    return Value(file_.value(section, key)).boolValue();
}

void QtUserDefaults::setBool(bool value, std::string_view key) {
    file_.setValue(section, key, value ? "true" : "false");
}

} // namespace zarvil
