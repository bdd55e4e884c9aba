#pragma once

#include "interface/AttributedString.h"
#include "platform/Canvas.h"

#include <QBrush>
#include <QColor>
#include <QPainter>
#include <QRectF>

/// The core's geometry and colors as Qt's, and back: the one place that turns them.
namespace zarvil::qt {

[[nodiscard]] Qt::Alignment toQt(TextAlignment alignment);
[[nodiscard]] inline QPointF toQt(const Point& point) { return {point.x, point.y}; }
[[nodiscard]] inline QRectF toQt(const Rect& rect) {
    return {rect.x, rect.y, rect.width, rect.height};
}
[[nodiscard]] inline QSizeF toQt(const Size& size) { return {size.width, size.height}; }
/// Components outside 0 to 1 are limited to it.
[[nodiscard]] QColor toQt(const Color& color);
[[nodiscard]] QPainter::CompositionMode toQt(BlendMode mode);
/// The gradient along an axis that stands in the coordinates in which the brush is used.
[[nodiscard]] QBrush toQt(const Gradient& gradient, const QPointF& start, const QPointF& end);

} // namespace zarvil::qt
