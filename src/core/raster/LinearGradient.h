#pragma once

#include "platform/Canvas.h"
#include "raster/Bitmap.h"

#include <vector>

namespace zarvil::raster {

/// Colours along a line of pixels; the first and the last go on beyond its ends. Between two
/// stops premultiplied colours run into each other.
class LinearGradient {
public:
    void set(const Gradient& gradient, Point start, Point end);

    [[nodiscard]] bool isOpaque() const;
    /// The colours of pixels in a row, sampled at their middles.
    void row(int x, int y, int count, Pixel* pixels) const;

private:
    struct Stop {
        double location;
        double red, green, blue, alpha; ///< premultiplied
    };

    [[nodiscard]] Pixel at(double location) const;

    std::vector<Stop> stops_;
    Point start_;
    Point perPixel_; ///< how far along the line a pixel to the right and one further down lie
};

} // namespace zarvil::raster
