#pragma once

#include "platform/Canvas.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zarvil {

/// Which way a view's y grows.
enum class Orientation : std::uint8_t { YDown, YUp };

/// Where a view stands on a bitmap.
struct RasterView {
    Size size; ///< in points
    Orientation orientation = Orientation::YDown;
    double scale = 1; ///< pixels a point
    /// The view's upper left corner on the bitmap, in pixels.
    Point origin;

    [[nodiscard]] Point toPixels(Point point) const;
    /// Of positive size, whatever the sign of the rectangle's.
    [[nodiscard]] Rect toPixels(const Rect& rect) const;
    friend bool operator==(const RasterView&, const RasterView&) = default;
};

} // namespace zarvil

namespace zarvil::raster {

/// What a path covers, as polygons in pixels so fine that coverage loses less than a level of 255.
/// A shape of negative size covers the area that it spans.
struct Outline {
    std::vector<Point> outer;
    std::vector<Point> hole; ///< wound the other way

    /// The outer polygon's extent; nothing where the path covers nothing or is beyond numbers.
    [[nodiscard]] std::optional<Rect> extent() const;

    void setFilled(const Path& path, const RasterView& view);
    /// The area of a stroke, `width` in points, with mitred corners and cut ends. Exact where
    /// curves are circular.
    void setStroked(const Path& path, double width, const RasterView& view);
};

} // namespace zarvil::raster
