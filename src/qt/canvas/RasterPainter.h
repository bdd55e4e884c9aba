#pragma once

#include "raster/RasterCanvas.h"

#include "qt/canvas/QtTextMask.h"

#include <QImage>

#include <functional>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace zarvil::qt {

/// Brings what drawn controls draw to painters, in whole device pixels, so that it is as sharp as
/// the device allows. What drawing needs is kept for the next time.
class RasterPainter {
public:
    /// The view's upper left corner is the painter's origin; a point is one of the painter's
    /// units. The painter may scale and move, but not turn or shear.
    void paint(QPainter& painter, QSizeF viewSize, Orientation orientation,
               const std::function<void(Canvas&)>& drawing);

    /// The same for what always looks alike: drawn anew only in another size, at another pixel
    /// density or another place between the pixels.
    void paintKept(QPainter& painter, QSizeF viewSize, Orientation orientation,
                   const std::function<void(Canvas&)>& drawing);

private:
    /// Where a view stands on a painter's device.
    struct Place {
        QRect pixels;
        RasterView view;
    };
    [[nodiscard]] static Place placeOf(const QPainter& painter, QSizeF viewSize,
                                       Orientation orientation);
    void draw(const Place& place, const std::function<void(Canvas&)>& drawing);
    void show(QPainter& painter, const Place& place) const;

    Bitmap bitmap_;
    RasterMemory memory_;
    QtTextMask text_;
    QImage image_;    ///< what was drawn last
    RasterView kept_; ///< how, where it is kept
};

} // namespace zarvil::qt
