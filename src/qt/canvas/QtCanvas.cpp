#include "qt/canvas/QtCanvas.h"

#include "qt/canvas/Convert.h"
#include "qt/canvas/Outline.h"
#include "qt/canvas/QtImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zarvil::qt {

namespace {

/// How far a polygon may lie inside the curve that it stands for, in device pixels: less than a
/// level of 255 of an edge pixel's coverage.
constexpr double flatness = 0.004;

/// Deep canvases keep deep layers, so that nothing is rounded on the way.
QImage::Format formatFor(const QPaintDevice* device) {
    const auto* image = dynamic_cast<const QImage*>(device);
    return image && image->depth() == 64 ? QImage::Format_RGBA64_Premultiplied
                                         : QImage::Format_ARGB32_Premultiplied;
}

QTransform viewToPainter(QSizeF viewSize, Orientation orientation) {
    return orientation == Orientation::YDown ? QTransform()
                                             : QTransform(1, 0, 0, -1, 0, viewSize.height());
}

} // namespace

struct QtCanvas::Target {
    Target(const QRect& pixels, QImage::Format format, const QPainter& like)
        : image(pixels.size().expandedTo({1, 1}), format), origin(pixels.topLeft()) {
        image.fill(Qt::transparent);
        painter.begin(&image);
        painter.setRenderHints(like.renderHints());
        painter.translate(-origin);
    }

    QImage image;
    QPoint origin;
    QPainter painter;
};

QtCanvas::QtCanvas(QPainter& painter, QSizeF viewSize, Orientation orientation)
    : base_(painter),
      orientation_(orientation),
      baseTransform_(painter.worldTransform()),
      toDevice_(viewToPainter(viewSize, orientation) * painter.deviceTransform()),
      toPixels_((baseTransform_.inverted() * painter.deviceTransform()).inverted()),
      scale_(std::sqrt(std::abs(toDevice_.determinant()))),
      viewPixels_(painter.deviceTransform().mapRect(QRectF({}, viewSize)).toAlignedRect()),
      format_(formatFor(painter.device())) {
    base_.save();
    base_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                         QPainter::SmoothPixmapTransform);
    base_.setWorldTransform(toPixels_);
}

QtCanvas::~QtCanvas() { base_.restore(); }

QPainter& QtCanvas::painter() const { return layers_.empty() ? base_ : layers_.back()->painter; }

void QtCanvas::saveState() {
    painter().save();
    states_.push_back(states_.back());
}

void QtCanvas::restoreState() {
    states_.pop_back();
    painter().restore();
}

void QtCanvas::clip(const Path& path) {
    painter().setClipPath(devicePath(path), Qt::IntersectClip);
}

void QtCanvas::setShadow(const Shadow& shadow) { states_.back().shadow = shadow; }

void QtCanvas::setBlendMode(BlendMode mode) { states_.back().blendMode = mode; }

void QtCanvas::beginTransparencyLayer() {
    layers_.push_back(std::make_unique<Target>(viewPixels_, format_, painter()));
    states_.push_back({});
}

void QtCanvas::endTransparencyLayer() {
    const std::unique_ptr<Target> layer = std::move(layers_.back());
    layers_.pop_back();
    states_.pop_back();
    layer->painter.end();
    if (const auto& shadow = states_.back().shadow)
        drawShadow(makeShadow({layer->image, layer->origin}, shadowDeviation(), toQt(shadow->color),
                              format_),
                   {});
    painter().setCompositionMode(toQt(states_.back().blendMode));
    painter().drawImage(layer->origin, layer->image);
}

QPainterPath QtCanvas::devicePath(const Path& path) const {
    return toDevice_.map(filledShape(path, flatness / scale_));
}

/// Strokes become fills: Qt draws thin pens less exactly than shapes.
QPainterPath QtCanvas::deviceOutline(const Path& path, double width) const {
    return toDevice_.map(strokedShape(path, width, flatness / scale_));
}

void QtCanvas::fillDevicePath(const QPainterPath& path, const QBrush& brush) {
    painter().setCompositionMode(toQt(states_.back().blendMode));
    painter().fillPath(path, brush);
}

void QtCanvas::fill(const Path& path, const Color& color) {
    const QPainterPath shape = devicePath(path);
    const QBrush brush(toQt(color));
    castShadow(path, 0, shape, brush, color.alpha);
    fillDevicePath(shape, brush);
}

void QtCanvas::stroke(const Path& path, const Color& color, double width) {
    const QPainterPath shape = deviceOutline(path, width);
    const QBrush brush(toQt(color));
    castShadow(path, width, shape, brush, color.alpha);
    fillDevicePath(shape, brush);
}

void QtCanvas::fill(const Path& path, const Gradient& gradient, double angle) {
    const QPainterPath shape = devicePath(path);
    const GradientAxis axis = gradientAxis(boundsOf(path), angle);
    const QBrush brush =
        toQt(gradient, toDevice_.map(toQt(axis.start)), toDevice_.map(toQt(axis.end)));
    const bool isOpaque =
        std::ranges::all_of(gradient.stops, [](const auto& stop) { return stop.color.alpha == 1; });
    castShadow(path, 0, shape, brush, isOpaque ? std::optional(1.0) : std::nullopt);
    fillDevicePath(shape, brush);
}

void QtCanvas::drawImage(const Image& image, const Rect& rect, double fraction) {
    const auto* own = dynamic_cast<const QtImage*>(&image);
    if (!own)
        return;
    const QImage& pixels = own->pixels(scale_, format_);
    if (pixels.isNull())
        return;
    const QRectF target = toDevice_.mapRect(toQt(rect));
    const double opacity = painter().opacity();
    painter().setOpacity(opacity * fraction);
    painter().setCompositionMode(toQt(states_.back().blendMode));
    if (target == QRectF(target.toAlignedRect()) && target.size() == QSizeF(pixels.size()))
        painter().drawImage(target.topLeft().toPoint(), pixels);
    else
        painter().drawImage(target, pixels, QRectF({}, toQt(own->size()) * scale_));
    painter().setOpacity(opacity);
}

} // namespace zarvil::qt
