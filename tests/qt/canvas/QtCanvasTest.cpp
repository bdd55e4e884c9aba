#include "Drawn.h"

#include "qt/canvas/QtImage.h"

#include <gtest/gtest.h>

#include <numbers>

namespace zarvil::qt {

namespace {

const Gradient whiteToBlack = Gradient::evenlySpaced({color::white, Color::gray(0)});

TEST(QtCanvas, startsAGradientAtTheTopAt90FlippedAndAtMinus90YUp) {
    struct Case {
        Orientation orientation;
        double angle;
        bool whiteAtTop;
    };
    for (const Case& shown :
         {Case{Orientation::YDown, 90, true}, Case{Orientation::YUp, -90, true},
          Case{Orientation::YDown, -90, false}, Case{Orientation::YUp, 90, false}}) {
        const QImage image = drawn({4, 40}, 1, shown.orientation, [&](Canvas& canvas) {
            EXPECT_EQ(canvas.isFlipped(), shown.orientation == Orientation::YDown);
            canvas.fill(Rect{0, 0, 4, 40}, whiteToBlack, shown.angle);
        });
        for (const int y : {0, 10, 39}) {
            const double fromTop = (y + 0.5) / 40;
            EXPECT_NEAR(redAt(image, 2, y), shown.whiteAtTop ? 1 - fromTop : fromTop, level)
                << shown.angle << " " << y;
        }
    }
}

TEST(QtCanvas, coversWhatTheAreaOfCurvesAndThinStrokesTells) {
    const auto covered = [](const std::function<void(Canvas&)>& drawing) {
        const QImage image = drawn({40, 40}, 1, Orientation::YDown, drawing);
        double sum = 0;
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 40; ++x)
                sum += alphaAt(image, x, y);
        return sum;
    };
    const double pi = std::numbers::pi;
    const Oval oval{{8.3, 8.3, 24, 24}};
    const RoundedRect pill{{5, 5, 30, 20}, {10, 10}};
    const Rect square{10, 10, 8, 8};
    // A negative size covers what it spans; radii of more than half of it make an ellipse.
    const RoundedRect backwards{{20, 20, -5, -10}, {8, 8}};
    const struct {
        std::function<void(Canvas&)> drawing;
        double area, tolerance;
    } cases[] = {
        {[&](Canvas& c) { c.fill(oval, color::white); }, pi * 144, 1},
        {[&](Canvas& c) { c.fill(pill, color::white); }, 200 + pi * 100, 1},
        // Both edges of a ring of half a pixel lie in the same pixels.
        {[&](Canvas& c) { c.stroke(pill, color::white, 0.5); }, 0.5 * (20 + 20 * pi), 0.5},
        {[&](Canvas& c) { c.stroke(square, color::white, 2); }, 100 - 36, 0.1},
        {[&](Canvas& c) { c.fill(backwards, color::white); }, pi * 2.5 * 5, 0.3},
    };
    for (const auto& [drawing, area, tolerance] : cases)
        EXPECT_NEAR(covered(drawing), area, tolerance);
}

TEST(QtCanvas, lightensWithThePremultipliedFormula) {
    struct Case {
        Color below, above;
        double red, alpha;
    };
    // Red is (1 - as) ab cb + as (1 - ab) cs + as ab max(cb, cs), all over the alpha.
    for (const Case& shown : {Case{Color::gray(0, 0.5), Color::gray(1, 0.6), 0.6 / 0.8, 0.8},
                              Case{color::clear, Color::gray(1, 0.6), 1, 0.6},
                              Case{Color::gray(0.7), Color::gray(0.2, 0.6), 0.7, 1}}) {
        const QImage image = drawn({4, 4}, 1, Orientation::YDown, [&](Canvas& canvas) {
            canvas.fill(Rect{0, 0, 4, 4}, shown.below);
            canvas.setBlendMode(BlendMode::Lighten);
            canvas.fill(Rect{0, 0, 4, 4}, shown.above);
        });
        EXPECT_NEAR(redAt(image, 1, 1), shown.red, level);
        EXPECT_NEAR(alphaAt(image, 1, 1), shown.alpha, level);
    }
}

TEST(QtCanvas, drawsALayerOnceWithTheStateOfItsBeginning) {
    const QImage image = drawn({20, 20}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.saveState();
        canvas.clip(Rect{0, 0, 10.5, 20});
        canvas.beginTransparencyLayer();
        canvas.fill(Rect{0, 0, 20, 20}, color::white);
        canvas.fill(Rect{0, 0, 20, 20}, color::white);
        canvas.endTransparencyLayer();
        canvas.restoreState();
        canvas.fill(Rect{0, 19, 20, 1}, color::white);
    });
    EXPECT_NEAR(alphaAt(image, 10, 5), 0.5, level) << "the clip's edge counts once";
    EXPECT_EQ(alphaAt(image, 11, 5), 0);
    EXPECT_EQ(alphaAt(image, 15, 19), 1) << "the clip went with its state";
}

TEST(QtCanvas, leavesThePainterAsItWas) {
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    QPainter painter(&image);
    painter.translate(3, 1);
    const QTransform before = painter.worldTransform();
    { QtCanvas(painter, {5, 5}, Orientation::YUp).fill(Rect{0, 0, 5, 5}, color::white); }
    EXPECT_EQ(painter.worldTransform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    EXPECT_EQ(image.pixelColor(6, 2), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(15, 11), QColor(Qt::white));
}

TEST(QtCanvas, measuresTextAlikeAtEveryScaleAndCutsWhatDoesNotFit) {
    Size at1;
    Size at2;
    const TextStyle style{14.4, color::white, TextAlignment::Left};
    drawn({10, 10}, 1, Orientation::YDown,
          [&](Canvas& canvas) { at1 = canvas.sizeOfText("Minutes", style); });
    QImage image = drawn({80, 30}, 2, Orientation::YDown, [&](Canvas& canvas) {
        at2 = canvas.sizeOfText("Minutes", style);
        const Size tenfold = canvas.sizeOfText("Minutes", {144, color::white, TextAlignment::Left});
        EXPECT_NEAR(tenfold.width, 10 * at2.width, 0.01) << "a size that is no whole number";
        EXPECT_NEAR(tenfold.height, 10 * at2.height, 0.01);
        canvas.drawText("Minutes", {2, 2, 20, at2.height}, style);
        canvas.drawText("Never", {40, 0, 0, 30}, style);
    });
    EXPECT_EQ(at1, at2);
    EXPECT_GT(at1.width, 20);
    EXPECT_GT(at1.height, 14.4);
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    EXPECT_NE(image, blank);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(QRectF(4, 4, 40, 2 * at2.height + 1), Qt::black);
    painter.end();
    EXPECT_EQ(image, blank) << "drawn beside its rectangle";
}

TEST(QtCanvas, drawsImagesUprightAndSharpAtEveryScale) {
    QtImageRenderer renderer;
    int times = 0;
    const auto image = renderer.render({10, 10}, [&times](Canvas& canvas) {
        ++times;
        EXPECT_FALSE(canvas.isFlipped());
        canvas.fill(Rect{0, 9.5, 10, 0.5}, color::white);
    });
    for (const Orientation orientation : {Orientation::YDown, Orientation::YUp})
        for (const double scale : {1.0, 2.0}) {
            const QImage pixels = drawn({10, 10}, scale, orientation, [&](Canvas& canvas) {
                canvas.drawImage(*image, {0, 0, 10, 10}, 0.5);
            });
            EXPECT_NEAR(alphaAt(pixels, 5, 0), scale == 2 ? 0.5 : 0.25, level);
            EXPECT_EQ(alphaAt(pixels, 5, 1), 0);
        }
    times = 0;
    for (int time = 0; time < 3; ++time)
        drawn({10, 10}, 2, Orientation::YUp, [&](Canvas& canvas) {
            canvas.drawImage(*image, {0, 0, 10, 10}, 1);
        });
    EXPECT_EQ(times, 0) << "the last picture was of this scale";
}

} // namespace

} // namespace zarvil::qt
