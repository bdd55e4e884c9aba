#include "qt/adapters/QtStringTable.h"

#include <QCoreApplication>

#include <algorithm>
#include <climits>

namespace zarvil {

namespace {

constexpr const char* context = "MainBundle";

} // namespace

std::string QtStringTable::localizedString(std::string_view key) const {
    const std::string source(key);
    const std::string text = QCoreApplication::translate(context, source.c_str()).toStdString();
    return text.empty() ? source : text;
}

std::string QtStringTable::localizedCount(std::string_view one, std::string_view many,
                                          std::int64_t count) const {
    const std::string source(many);
    const auto number = static_cast<int>(std::clamp<std::int64_t>(count, INT_MIN, INT_MAX));
    const QString pattern = QString::fromUtf8(source);
    const QString text = QCoreApplication::translate(context, source.c_str(), nullptr, number);
    // A table of plurals may give the key itself; it has no singular then, or it is not needed.
    const bool isTranslated =
        QString(pattern).replace(QLatin1String("%n"), QString::number(number)) != text;
    return isTranslated || count != 1 ? text.toStdString()
                                      : StringTable::localizedCount(one, many, count);
}

} // namespace zarvil
