#include "qt/adapters/QtStringTable.h"

#include <QCoreApplication>

namespace zarvil {

std::string QtStringTable::localizedString(std::string_view key) const {
    const std::string source(key);
    const std::string text =
        QCoreApplication::translate("MainBundle", source.c_str()).toStdString();
    return text.empty() ? source : text;
}

} // namespace zarvil
