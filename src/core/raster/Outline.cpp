#include "raster/Outline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace zarvil {

Point RasterView::toPixels(Point point) const {
    const double y = orientation == Orientation::YDown ? point.y : size.height - point.y;
    return {origin.x + point.x * scale, origin.y + y * scale};
}

Rect RasterView::toPixels(const Rect& rect) const {
    const Point one = toPixels(Point{rect.x, rect.y});
    const Point other = toPixels(Point{rect.x + rect.width, rect.y + rect.height});
    return {std::min(one.x, other.x), std::min(one.y, other.y), std::abs(other.x - one.x),
            std::abs(other.y - one.y)};
}

} // namespace zarvil

namespace zarvil::raster {

namespace {

/// How far a side may lie inside the curve that it stands for, in pixels.
constexpr double flatness = 0.004;
constexpr double quarterTurn = std::numbers::pi / 2;

int sidesOfQuarter(double radius) {
    const double sagitta = std::clamp(flatness / radius, 1e-6, 0.5);
    return static_cast<int>(std::ceil(quarterTurn / (2 * std::acos(1 - sagitta))));
}

/// Every closed path is a rounded rectangle: a plain one has no radii, an oval the largest.
struct Closed {
    Rect rect;
    Size radii;
};

Closed closed(const Rect& rect, const Size& radii) {
    const auto limited = [](double radius, double side) {
        return radius > 0 ? std::min(radius, side / 2) : 0;
    };
    return {rect, {limited(radii.width, rect.width), limited(radii.height, rect.height)}};
}

struct ClosedPath {
    const RasterView& view;

    Closed operator()(const Rect& rect) const { return closed(view.toPixels(rect), {}); }
    Closed operator()(const RoundedRect& rounded) const {
        return closed(view.toPixels(rounded.rect),
                      {rounded.radii.width * view.scale, rounded.radii.height * view.scale});
    }
    Closed operator()(const Oval& oval) const {
        const Rect rect = view.toPixels(oval.rect);
        return closed(rect, rect.size());
    }
    Closed operator()(const Line& line) const { return closed(view.toPixels(boundsOf(line)), {}); }
};

/// Adds a quarter of an ellipse around a middle.
void addCorner(std::vector<Point>& polygon, Point middle, const Size& radii, double startAngle) {
    const double larger = std::max(radii.width, radii.height);
    if (!(larger > 0)) {
        polygon.push_back(middle);
        return;
    }
    const int sides = sidesOfQuarter(larger);
    const double cosine = std::cos(quarterTurn / sides);
    const double sine = std::sin(quarterTurn / sides);
    Point direction{std::cos(startAngle), std::sin(startAngle)};
    for (int side = 0; side <= sides; ++side) {
        polygon.push_back(
            {middle.x + radii.width * direction.x, middle.y + radii.height * direction.y});
        direction = {direction.x * cosine - direction.y * sine,
                     direction.x * sine + direction.y * cosine};
    }
}

void addClosed(std::vector<Point>& polygon, const Closed& shape, double outset) {
    const Rect rect{shape.rect.x - outset, shape.rect.y - outset, shape.rect.width + 2 * outset,
                    shape.rect.height + 2 * outset};
    if (!(rect.width > 0 && rect.height > 0))
        return;
    const auto radius = [outset](double original) {
        return original > 0 ? std::max(0.0, original + outset) : 0;
    };
    const Size radii{radius(shape.radii.width), radius(shape.radii.height)};
    const double left = rect.x + radii.width;
    const double top = rect.y + radii.height;
    const double right = rect.x + rect.width - radii.width;
    const double bottom = rect.y + rect.height - radii.height;
    addCorner(polygon, {right, bottom}, radii, 0);
    addCorner(polygon, {left, bottom}, radii, quarterTurn);
    addCorner(polygon, {left, top}, radii, 2 * quarterTurn);
    addCorner(polygon, {right, top}, radii, 3 * quarterTurn);
}

void addStrokedLine(std::vector<Point>& polygon, Point from, Point to, double width) {
    const Point along{to.x - from.x, to.y - from.y};
    const double length = std::hypot(along.x, along.y);
    if (!(length > 0))
        return;
    const double half = width / 2 / length;
    const Point aside{-along.y * half, along.x * half};
    polygon.push_back({from.x + aside.x, from.y + aside.y});
    polygon.push_back({to.x + aside.x, to.y + aside.y});
    polygon.push_back({to.x - aside.x, to.y - aside.y});
    polygon.push_back({from.x - aside.x, from.y - aside.y});
}

} // namespace

std::optional<Rect> Outline::extent() const {
    if (outer.empty())
        return std::nullopt;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Point low{infinity, infinity};
    Point high{-infinity, -infinity};
    for (const Point& point : outer) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y))
            return std::nullopt;
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    const Rect extent{low.x, low.y, high.x - low.x, high.y - low.y};
    if (!std::isfinite(extent.width) || !std::isfinite(extent.height))
        return std::nullopt;
    return extent;
}

void Outline::setFilled(const Path& path, const RasterView& view) {
    outer.clear();
    hole.clear();
    if (!std::holds_alternative<Line>(path))
        addClosed(outer, std::visit(ClosedPath{view}, path), 0);
}

void Outline::setStroked(const Path& path, double width, const RasterView& view) {
    outer.clear();
    hole.clear();
    const double pixels = width * view.scale;
    if (!(pixels > 0))
        return;
    if (const auto* line = std::get_if<Line>(&path)) {
        addStrokedLine(outer, view.toPixels(line->from), view.toPixels(line->to), pixels);
        return;
    }
    const Closed shape = std::visit(ClosedPath{view}, path);
    addClosed(outer, shape, pixels / 2);
    addClosed(hole, shape, -pixels / 2);
    std::ranges::reverse(hole);
}

} // namespace zarvil::raster
