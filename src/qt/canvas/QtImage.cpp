#include "qt/canvas/QtImage.h"

#include "qt/canvas/Convert.h"
#include "qt/canvas/QtCanvas.h"

#include <QPainter>

#include <cmath>

namespace zarvil::qt {

const QImage& QtImage::pixels(double scale, QImage::Format format) const {
    if (scale == scale_ && format == pixels_.format())
        return pixels_;
    const QSizeF wanted = toQt(size_) * scale;
    scale_ = scale;
    pixels_ = QImage(QSize(static_cast<int>(std::ceil(wanted.width())),
                           static_cast<int>(std::ceil(wanted.height()))),
                     format);
    if (pixels_.isNull())
        return pixels_;
    pixels_.fill(Qt::transparent);
    QPainter painter(&pixels_);
    painter.scale(scale, scale);
    QtCanvas canvas(painter, toQt(size_), Orientation::YUp);
    drawing_(canvas);
    return pixels_;
}

} // namespace zarvil::qt
