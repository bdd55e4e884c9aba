#include "qt/canvas/Outline.h"

#include "qt/canvas/Convert.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zarvil::qt {

namespace {

constexpr double quarterTurn = std::numbers::pi / 2;

int sidesOfQuarter(double radius, double tolerance) {
    const double sagitta = std::clamp(tolerance / radius, 1e-6, 0.5);
    return static_cast<int>(std::ceil(quarterTurn / (2 * std::acos(1 - sagitta))));
}

/// Adds a quarter of an ellipse around a middle.
void addCorner(QPolygonF& polygon, QPointF middle, QSizeF radii, double startAngle,
               double tolerance) {
    const double larger = std::max(radii.width(), radii.height());
    if (larger <= 0) {
        polygon.append(middle);
        return;
    }
    const int sides = sidesOfQuarter(larger, tolerance);
    for (int side = 0; side <= sides; ++side) {
        const double angle = startAngle + quarterTurn * side / sides;
        polygon.append(middle +
                       QPointF(radii.width() * std::cos(angle), radii.height() * std::sin(angle)));
    }
}

QPolygonF roundedRect(const QRectF& rect, QSizeF radii, double tolerance) {
    const QRectF middles =
        rect.adjusted(radii.width(), radii.height(), -radii.width(), -radii.height());
    QPolygonF polygon;
    addCorner(polygon, middles.bottomRight(), radii, 0, tolerance);
    addCorner(polygon, middles.bottomLeft(), radii, quarterTurn, tolerance);
    addCorner(polygon, middles.topLeft(), radii, 2 * quarterTurn, tolerance);
    addCorner(polygon, middles.topRight(), radii, 3 * quarterTurn, tolerance);
    return polygon;
}

/// Every closed path is a rounded rectangle: a plain one has no radii, an oval the largest.
struct Closed {
    QRectF rect;
    QSizeF radii;
};

Closed closed(const QRectF& rect, const QSizeF& radii) {
    const QRectF normal = rect.normalized();
    return {normal,
            {std::clamp(radii.width(), 0.0, normal.width() / 2),
             std::clamp(radii.height(), 0.0, normal.height() / 2)}};
}

struct ClosedPath {
    Closed operator()(const Rect& rect) const { return closed(toQt(rect), {0, 0}); }
    Closed operator()(const RoundedRect& rounded) const {
        return closed(toQt(rounded.rect), toQt(rounded.radii));
    }
    Closed operator()(const Oval& oval) const {
        const QRectF rect = toQt(oval.rect).normalized();
        return {rect, rect.size() / 2};
    }
    Closed operator()(const Line& line) const { return closed(toQt(boundsOf(line)), {0, 0}); }
};

QPainterPath strokedLine(const Line& line, double width) {
    const QPointF along = toQt(line.to) - toQt(line.from);
    const double length = std::hypot(along.x(), along.y());
    QPainterPath path;
    if (length <= 0)
        return path;
    const QPointF aside = QPointF(-along.y(), along.x()) * (width / 2 / length);
    path.addPolygon(QPolygonF({toQt(line.from) + aside, toQt(line.to) + aside,
                               toQt(line.to) - aside, toQt(line.from) - aside}));
    path.closeSubpath();
    return path;
}

QPolygonF closedPolygon(const Closed& shape, double outset, double tolerance) {
    const QRectF rect = shape.rect.adjusted(-outset, -outset, outset, outset);
    if (rect.width() <= 0 || rect.height() <= 0)
        return {};
    const auto radius = [&](double original) {
        return original > 0 ? std::max(0.0, original + outset) : 0;
    };
    return roundedRect(rect, {radius(shape.radii.width()), radius(shape.radii.height())},
                       tolerance);
}

void addPolygon(QPainterPath& path, const QPolygonF& polygon) {
    if (polygon.isEmpty())
        return;
    path.addPolygon(polygon);
    path.closeSubpath();
}

} // namespace

QPainterPath filledShape(const Path& path, double tolerance) {
    QPainterPath shape;
    if (!std::holds_alternative<Line>(path))
        addPolygon(shape, closedPolygon(std::visit(ClosedPath{}, path), 0, tolerance));
    return shape;
}

QPainterPath strokedShape(const Path& path, double width, double tolerance) {
    if (const auto* line = std::get_if<Line>(&path))
        return strokedLine(*line, width);
    const Closed shape = std::visit(ClosedPath{}, path);
    QPolygonF hole = closedPolygon(shape, -width / 2, tolerance);
    // Wound the other way: the odd-even rule fails in pixels that both edges cross.
    std::reverse(hole.begin(), hole.end());
    QPainterPath ring;
    ring.setFillRule(Qt::WindingFill);
    addPolygon(ring, closedPolygon(shape, width / 2, tolerance));
    addPolygon(ring, hole);
    return ring;
}

} // namespace zarvil::qt
