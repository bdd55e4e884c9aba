#pragma once

#include "interface/Geometry.h"
#include "raster/Blend.h"
#include "raster/Outline.h"

#include <vector>

namespace zarvil::raster {

/// The smallest whole pixels around a rectangle, as far as they lie inside others.
[[nodiscard]] PixelRect pixelsAround(const Rect& rect, const PixelRect& within);

/// How much of each pixel an outline covers, from the exact areas between its sides and the
/// pixels' right edges.
class AreaCoverage {
public:
    /// Only the region's pixels are looked at. The outline must have an extent.
    void cover(const Outline& outline, const PixelRect& region);

    [[nodiscard]] const PixelRect& region() const { return region_; }
    /// Writes as many values as the region is wide; y counts from the region's top. Of an empty
    /// region, which may have rows without pixels, there is nothing to write.
    void row(int y, Coverage* coverage) const;

private:
    void addPolygon(const std::vector<Point>& polygon);
    void addSide(Point from, Point to);
    void addInRow(float* cells, double fromX, double toX, double height) const;

    PixelRect region_;
    /// Of each row, by how much the covered area changes from pixel to pixel; one more than wide.
    std::vector<float> changes_;
};

} // namespace zarvil::raster
