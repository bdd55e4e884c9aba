#include "qt/canvas/RasterPainter.h"

#include <QPainter>

#include <cmath>

namespace zarvil::qt {

void RasterPainter::paint(QPainter& painter, QSizeF viewSize, Orientation orientation,
                          const std::function<void(Canvas&)>& drawing) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF place = toDevice.mapRect(QRectF({}, viewSize));
    const QRect pixels = place.toAlignedRect();
    bitmap_.reset(pixels.width(), pixels.height());
    if (bitmap_.bounds().isEmpty())
        return;
    RasterCanvas canvas(bitmap_, memory_, text_,
                        {{viewSize.width(), viewSize.height()},
                         orientation,
                         std::sqrt(std::abs(toDevice.determinant())),
                         {place.x() - pixels.x(), place.y() - pixels.y()}});
    drawing(canvas);
    const QSize size(bitmap_.width(), bitmap_.height());
    if (image_.size() != size)
        image_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    bitmap_.copyTo(image_.bits(), static_cast<std::size_t>(image_.bytesPerLine()),
                   PixelLayout::Argb32Words);
    const QTransform before = painter.worldTransform();
    painter.setWorldTransform((before.inverted() * toDevice).inverted());
    painter.drawImage(pixels.topLeft(), image_);
    painter.setWorldTransform(before);
}

} // namespace zarvil::qt
