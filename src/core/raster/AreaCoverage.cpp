#include "raster/AreaCoverage.h"

#include <algorithm>
#include <cmath>

namespace zarvil::raster {

PixelRect pixelsAround(const Rect& rect, const PixelRect& within) {
    const auto limited = [](double value, int low, int high) {
        return static_cast<int>(std::clamp<double>(value, low, high));
    };
    const int left = limited(std::floor(rect.x), within.x, within.right());
    const int top = limited(std::floor(rect.y), within.y, within.bottom());
    return {left, top, limited(std::ceil(rect.x + rect.width), left, within.right()) - left,
            limited(std::ceil(rect.y + rect.height), top, within.bottom()) - top};
}

void AreaCoverage::cover(const Outline& outline, const PixelRect& region) {
    region_ = region;
    const std::size_t cells = region.isEmpty() ? 0
                                               : static_cast<std::size_t>(region.width + 1) *
                                                     static_cast<std::size_t>(region.height);
    changes_.assign(cells, 0);
    if (cells == 0)
        return;
    addPolygon(outline.outer);
    addPolygon(outline.hole);
}

void AreaCoverage::addPolygon(const std::vector<Point>& polygon) {
    for (std::size_t index = 0; index < polygon.size(); ++index)
        addSide(polygon[index], polygon[index + 1 < polygon.size() ? index + 1 : 0]);
}

void AreaCoverage::addSide(Point from, Point to) {
    const double sign = from.y < to.y ? 1 : -1;
    if (sign < 0)
        std::swap(from, to);
    from = {from.x - region_.x, from.y - region_.y};
    to = {to.x - region_.x, to.y - region_.y};
    const double top = std::max(from.y, 0.0);
    const double bottom = std::min<double>(to.y, region_.height);
    if (!(top < bottom))
        return;
    const double slope = (to.x - from.x) / (to.y - from.y);
    if (!std::isfinite(slope)) // too flat to cover anything
        return;
    const auto xAt = [&](double y) {
        // Not beyond the ends, whatever the slope rounds to.
        return std::clamp(from.x + (y - from.y) * slope, std::min(from.x, to.x),
                          std::max(from.x, to.x));
    };
    const auto rowLength = static_cast<std::size_t>(region_.width) + 1;
    const int last = static_cast<int>(std::ceil(bottom));
    for (int row = static_cast<int>(top); row < last; ++row) {
        const double low = std::max<double>(row, top);
        const double high = std::min<double>(row + 1, bottom);
        addInRow(changes_.data() + static_cast<std::size_t>(row) * rowLength, xAt(low), xAt(high),
                 sign * (high - low));
    }
}

/// A side's part in one row, of a signed height. What lies left of the region covers all of it.
void AreaCoverage::addInRow(float* cells, double fromX, double toX, double height) const {
    const double width = region_.width;
    const double left = std::min(fromX, toX);
    const double right = std::max(fromX, toX);
    if (left >= width)
        return;
    const auto add = [cells](int cell, double share, double middle) {
        cells[cell] += static_cast<float>(share * (1 - middle));
        cells[cell + 1] += static_cast<float>(share * middle);
    };
    if (right <= 0) {
        add(0, height, 0);
        return;
    }
    const double steep = 1e-9;
    if (right - left < steep) {
        const double x = std::max(left, 0.0);
        const int cell = static_cast<int>(x);
        add(cell, height, x - cell);
        return;
    }
    const double perPixel = height / (right - left);
    if (left < 0)
        add(0, perPixel * -left, 0);
    const double end = std::min(right, width);
    for (int cell = static_cast<int>(std::max(left, 0.0)); cell < end; ++cell) {
        const double low = std::max<double>(cell, left);
        const double high = std::min<double>(cell + 1, end);
        add(cell, perPixel * (high - low), (low + high) / 2 - cell);
    }
}

void AreaCoverage::row(int y, Coverage* coverage) const {
    if (region_.isEmpty())
        return;
    const float* changes = changes_.data() + static_cast<std::size_t>(y) *
                                                 (static_cast<std::size_t>(region_.width) + 1);
    float covered = 0;
    for (int x = 0; x < region_.width; ++x) {
        covered += changes[x];
        coverage[x] = coverageOf(std::min(std::abs(covered), 1.0F));
    }
}

} // namespace zarvil::raster
