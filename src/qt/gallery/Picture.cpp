#include "Picture.h"

#include "qt/canvas/QtTextMask.h"
#include "raster/RasterCanvas.h"

#include <QRgba64>

#include <algorithm>

namespace zarvil::gallery {

QImage picture(const Case& shown, int scale) {
    Bitmap bitmap(static_cast<int>(shown.viewSize.width * scale),
                  static_cast<int>(shown.viewSize.height * scale));
    RasterMemory memory;
    qt::QtTextMask text;
    RasterCanvas canvas(bitmap, memory, text,
                        {shown.viewSize, shown.orientation, static_cast<double>(scale), {}});
    shown.draw(canvas);
    QImage image(bitmap.width(), bitmap.height(), QImage::Format_RGBA64_Premultiplied);
    for (int y = 0; y < bitmap.height(); ++y)
        std::transform(bitmap.row(y), bitmap.row(y) + bitmap.width(),
                       reinterpret_cast<QRgba64*>(image.scanLine(y)), [](Pixel pixel) {
                           const auto channel = [pixel](int shift) {
                               return static_cast<quint16>(pixel >> shift);
                           };
                           return qRgba64(channel(0), channel(16), channel(32), channel(48));
                       });
    return image.convertToFormat(QImage::Format_RGBA64).convertToFormat(QImage::Format_RGBA8888);
}

} // namespace zarvil::gallery
