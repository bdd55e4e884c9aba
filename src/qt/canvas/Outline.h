#pragma once

#include "platform/Canvas.h"

#include <QPainterPath>

/// Paths as polygons so fine that no curve is left to the rasteriser, which would take off a fair
/// part of a pixel. `tolerance` is the furthest that a side may lie inside the true curve. A shape
/// of negative size covers the area that it spans.
namespace zarvil::qt {

[[nodiscard]] QPainterPath filledShape(const Path& path, double tolerance);

/// The area that a stroke of this width covers, with mitred corners and cut ends. Exact where
/// curves are circular.
[[nodiscard]] QPainterPath strokedShape(const Path& path, double width, double tolerance);

} // namespace zarvil::qt
