#include "platform/Canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zarvil {

namespace {

Rect moved(Rect rect, double dx, double dy) {
    return {rect.x + dx, rect.y + dy, rect.width, rect.height};
}

Point moved(Point point, double dx, double dy) { return {point.x + dx, point.y + dy}; }

struct Translation {
    double dx;
    double dy;

    Path operator()(const Rect& rect) const { return moved(rect, dx, dy); }
    Path operator()(const RoundedRect& rounded) const {
        return RoundedRect{moved(rounded.rect, dx, dy), rounded.radii};
    }
    Path operator()(const Oval& oval) const { return Oval{moved(oval.rect, dx, dy)}; }
    Path operator()(const Line& line) const {
        return Line{moved(line.from, dx, dy), moved(line.to, dx, dy)};
    }
};

struct Bounds {
    Rect operator()(const Rect& rect) const { return rect; }
    Rect operator()(const RoundedRect& rounded) const { return rounded.rect; }
    Rect operator()(const Oval& oval) const { return oval.rect; }
    Rect operator()(const Line& line) const {
        return {std::min(line.from.x, line.to.x), std::min(line.from.y, line.to.y),
                std::abs(line.to.x - line.from.x), std::abs(line.to.y - line.from.y)};
    }
};

} // namespace

Path translated(const Path& path, double dx, double dy) {
    return std::visit(Translation{dx, dy}, path);
}

Rect boundsOf(const Path& path) { return std::visit(Bounds{}, path); }

Gradient Gradient::evenlySpaced(const std::vector<Color>& colors) {
    Gradient gradient;
    const double last = std::max<double>(1, static_cast<double>(colors.size()) - 1);
    for (const Color& color : colors)
        gradient.stops.push_back({static_cast<double>(gradient.stops.size()) / last, color});
    return gradient;
}

GradientAxis gradientAxis(const Rect& rect, double angle) {
    const double radians = angle * std::numbers::pi / 180;
    const double dx = std::cos(radians);
    const double dy = std::sin(radians);
    const double half = (std::abs(rect.width * dx) + std::abs(rect.height * dy)) / 2;
    const Point middle{rect.x + rect.width / 2, rect.y + rect.height / 2};
    return {{middle.x - dx * half, middle.y - dy * half},
            {middle.x + dx * half, middle.y + dy * half}};
}

} // namespace zarvil
