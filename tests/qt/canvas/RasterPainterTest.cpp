#include "qt/canvas/RasterPainter.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace zarvil::qt {

namespace {

QImage blank(int scale) {
    QImage image(80 * scale, 30 * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

TEST(RasterPainter, drawsInDevicePixelsAndLeavesThePainterAsItWas) {
    QImage image = blank(2);
    QPainter painter(&image);
    painter.translate(3, 1.25);
    const QTransform before = painter.worldTransform();
    RasterPainter raster;
    int drawings = 0;
    const auto white = [&](Canvas& canvas) {
        ++drawings;
        canvas.fill(Rect{0, 0, 5, 5}, color::white);
    };
    raster.paint(painter, {5, 5}, Orientation::YUp, white);
    EXPECT_EQ(painter.worldTransform(), before);
    EXPECT_EQ(image.pixelColor(6, 3), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(15, 11), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(6, 2).alpha(), 128) << "half of a pixel";
    EXPECT_EQ(image.pixelColor(16, 5).alpha(), 0);

    RasterPainter keeping;
    for (const int drawn : {2, 2, 3}) {
        keeping.paintKept(painter, {drawn == 3 ? 6.0 : 5.0, 5}, Orientation::YUp, white);
        EXPECT_EQ(drawings, drawn);
    }
    raster.paint(painter, {0, 5}, Orientation::YUp, white);
}

/// Where a line of text leaves pixels, in those of the device.
QRect inkOf(int scale, const TextStyle& style, const Rect& box) {
    QImage image = blank(scale);
    QPainter painter(&image);
    RasterPainter().paint(painter, {80, 30}, Orientation::YDown,
                          [&](Canvas& canvas) { canvas.drawText("HHHHHH", box, style); });
    QRegion ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > 100)
                ink += QRect(x, y, 1, 1);
    return ink.boundingRect();
}

TEST(QtTextMask, measuresAndDrawsTheExactSizeAtEveryScale) {
    const QtTextMask text;
    const Size size = text.sizeOfText("HHHHHH", 14.4);
    const Size large = text.sizeOfText("HHHHHH", 1440);
    EXPECT_NEAR(size.width * 100, large.width, 0.01);
    EXPECT_NEAR(size.height * 100, large.height, 0.01);
    EXPECT_GT(size.height, 14.4);
    const TextStyle style{14.4, color::white, TextAlignment::Left};
    const QRect ink = inkOf(4, style, {2, 2, 70, 26});
    const QRect inkOfWholeSize = inkOf(4, {15, color::white}, {2, 2, 76, 26});
    EXPECT_NEAR(ink.width(), inkOfWholeSize.width() * 14.4 / 15, 2);
    EXPECT_NEAR(ink.height(), inkOfWholeSize.height() * 14.4 / 15, 1);
    const QRect cut = inkOf(4, style, {2, 2, 20, 20});
    EXPECT_TRUE(QRect(8, 8, 80, 80).contains(cut)) << "beside its rectangle";
    EXPECT_GT(cut.width(), 20);
}

} // namespace

} // namespace zarvil::qt
