#pragma once

#include "interface/AttributedString.h"
#include "interface/Color.h"

#include <QColor>
#include <QString>

#include <string>
#include <string_view>

/// The one place where this front end turns the core's strings and colours into Qt's and back.
namespace zarvil::qt {

[[nodiscard]] QString toQt(std::string_view text);
[[nodiscard]] std::string fromQt(const QString& text);
[[nodiscard]] QColor toQt(const Color& color);
[[nodiscard]] Qt::Alignment toQt(TextAlignment alignment);

} // namespace zarvil::qt
