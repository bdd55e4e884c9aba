#pragma once

#include "qt/canvas/QtCanvas.h"

#include <QColor>
#include <QImage>
#include <QPainter>

#include <functional>

namespace zarvil::qt {

/// What a drawing leaves on transparent pixels, seen pixel by pixel.
inline QImage drawn(QSizeF size, double scale, Orientation orientation,
                    const std::function<void(Canvas&)>& drawing) {
    QImage image((size * scale).toSize(), QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    QtCanvas canvas(painter, size, orientation);
    drawing(canvas);
    return image;
}

inline double alphaAt(const QImage& image, int x, int y) {
    return static_cast<double>(image.pixelColor(x, y).alphaF());
}
inline double redAt(const QImage& image, int x, int y) {
    return static_cast<double>(image.pixelColor(x, y).redF());
}

/// One step of eight bits, as coverage is counted in steps no finer.
inline constexpr double level = 1.0 / 255;

} // namespace zarvil::qt
