#include "qt/canvas/Convert.h"
#include "qt/canvas/QtCanvas.h"

#include <QPainter>

#include <cmath>

namespace zarvil::qt {

namespace {

/// Steps of a pixel in which two places of a shape count as different.
constexpr int subpixels = 4096;

int floorDivide(int value, int divisor) {
    return (value - ((value % divisor) + divisor) % divisor) / divisor;
}

struct Corners {
    Size operator()(const Rect& /*rect*/) const { return {}; }
    Size operator()(const RoundedRect& rounded) const { return rounded.radii; }
    Size operator()(const Oval& /*oval*/) const { return {}; }
    /// Tells the two diagonals apart.
    Size operator()(const Line& line) const {
        return {line.to.x - line.from.x, line.to.y - line.from.y};
    }
};

/// The shape's alpha, on as many pixels as it covers.
PlacedImage rasterized(const QPainterPath& shape, const QBrush& brush) {
    const QRect pixels = shape.boundingRect().toAlignedRect();
    if (pixels.isEmpty())
        return {};
    QImage image(pixels.size(), QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-pixels.topLeft());
    painter.fillPath(shape, brush);
    return {image, pixels.topLeft()};
}

} // namespace

double QtCanvas::shadowDeviation() const {
    return states_.back().shadow->blurRadius * 0.5 * scale_;
}

QPoint QtCanvas::shadowOffset() const {
    const QSizeF offset = toQt(states_.back().shadow->offset) * scale_;
    return {static_cast<int>(std::lround(offset.width())),
            static_cast<int>(-std::lround(offset.height()))};
}

ShadowKey QtCanvas::shadowKey(const Path& path, double strokeWidth, const QPoint& phase,
                              double alpha) const {
    const Size size = boundsOf(path).size();
    const Size corners = std::visit(Corners{}, path);
    const Color& color = states_.back().shadow->color;
    return {static_cast<double>(path.index()),
            size.width,
            size.height,
            corners.width,
            isFlipped() ? corners.height : -corners.height,
            strokeWidth,
            static_cast<double>(phase.x()),
            static_cast<double>(phase.y()),
            scale_,
            alpha,
            shadowDeviation(),
            color.red,
            color.green,
            color.blue,
            color.alpha,
            static_cast<double>(format_)};
}

void QtCanvas::castShadow(const Path& path, double strokeWidth, const QPainterPath& shape,
                          const QBrush& brush, std::optional<double> evenAlpha) {
    const auto& shadow = states_.back().shadow;
    if (!shadow)
        return;
    const auto make = [&](QPoint from) {
        PlacedImage made = rasterized(shape, brush);
        if (!made.image.isNull())
            made = makeShadow(made, shadowDeviation(), toQt(shadow->color), format_);
        made.origin -= from;
        return made;
    };
    if (!evenAlpha) {
        drawShadow(make({}), {});
        return;
    }
    const QPointF corner = toDevice_.mapRect(toQt(boundsOf(path)).normalized()).topLeft();
    const QPoint place = (corner * subpixels).toPoint();
    const QPoint origin(floorDivide(place.x(), subpixels), floorDivide(place.y(), subpixels));
    const QPoint phase = place - origin * subpixels;
    drawShadow(ShadowCache::shared().shadow(shadowKey(path, strokeWidth, phase, *evenAlpha),
                                            [&] { return make(origin); }),
               origin);
}

void QtCanvas::drawShadow(const PlacedImage& shadow, QPoint shapeOrigin) {
    if (shadow.image.isNull())
        return;
    painter().setCompositionMode(toQt(states_.back().blendMode));
    painter().drawImage(shapeOrigin + shadow.origin + shadowOffset(), shadow.image);
}

} // namespace zarvil::qt
