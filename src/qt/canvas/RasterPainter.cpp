#include "qt/canvas/RasterPainter.h"

#include <QPainter>

#include <cmath>

namespace zarvil::qt {

RasterPainter::Place RasterPainter::placeOf(const QPainter& painter, QSizeF viewSize,
                                            Orientation orientation) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF place = toDevice.mapRect(QRectF({}, viewSize));
    const QRect pixels = place.toAlignedRect();
    return {pixels,
            {{viewSize.width(), viewSize.height()},
             orientation,
             std::sqrt(std::abs(toDevice.determinant())),
             {place.x() - pixels.x(), place.y() - pixels.y()}}};
}

void RasterPainter::draw(const Place& place, const std::function<void(Canvas&)>& drawing) {
    bitmap_.reset(place.pixels.width(), place.pixels.height());
    RasterCanvas canvas(bitmap_, memory_, text_, place.view);
    drawing(canvas);
    const QSize size(bitmap_.width(), bitmap_.height());
    if (image_.size() != size)
        image_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    if (!image_.isNull())
        bitmap_.copyTo(image_.bits(), static_cast<std::size_t>(image_.bytesPerLine()),
                       PixelLayout::Argb32Words);
}

void RasterPainter::show(QPainter& painter, const Place& place) const {
    const QTransform before = painter.worldTransform();
    painter.setWorldTransform((before.inverted() * painter.deviceTransform()).inverted());
    painter.drawImage(place.pixels.topLeft(), image_);
    painter.setWorldTransform(before);
}

void RasterPainter::paint(QPainter& painter, QSizeF viewSize, Orientation orientation,
                          const std::function<void(Canvas&)>& drawing) {
    const Place place = placeOf(painter, viewSize, orientation);
    draw(place, drawing);
    show(painter, place);
}

void RasterPainter::paintKept(QPainter& painter, QSizeF viewSize, Orientation orientation,
                              const std::function<void(Canvas&)>& drawing) {
    const Place place = placeOf(painter, viewSize, orientation);
    if (image_.isNull() || place.view != kept_) {
        draw(place, drawing);
        kept_ = place.view;
        bitmap_ = {};
        memory_ = {};
    }
    show(painter, place);
}

} // namespace zarvil::qt
