#pragma once

#include "interface/AttributedString.h"
#include "interface/Color.h"
#include "interface/Geometry.h"

#include <QColor>
#include <QRectF>

/// The core's geometry and colors as Qt's, and back: the one place that turns them.
namespace zarvil::qt {

[[nodiscard]] Qt::Alignment toQt(TextAlignment alignment);
[[nodiscard]] inline QSizeF toQt(const Size& size) { return {size.width, size.height}; }
/// Components outside 0 to 1 are limited to it.
[[nodiscard]] QColor toQt(const Color& color);

} // namespace zarvil::qt
