#include "Drawn.h"

#include "raster/RasterImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace zarvil {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(RasterCanvas, startsAGradientAtTheTopAt90FlippedAndAtMinus90YUp) {
    const Gradient whiteToBlack = Gradient::evenlySpaced({color::white, Color::gray(0)});
    struct Case {
        Orientation orientation;
        double angle;
        bool whiteAtTop;
    };
    for (const Case& shown :
         {Case{Orientation::YDown, 90, true}, Case{Orientation::YUp, -90, true},
          Case{Orientation::YDown, -90, false}, Case{Orientation::YUp, 90, false}}) {
        const Drawn image({4, 40}, 1, shown.orientation, [&](Canvas& canvas) {
            EXPECT_EQ(canvas.isFlipped(), shown.orientation == Orientation::YDown);
            canvas.fill(Rect{0, 0, 4, 40}, whiteToBlack, shown.angle);
        });
        for (const int y : {0, 10, 39}) {
            const double fromTop = (y + 0.5) / 40;
            EXPECT_NEAR(image.red(2, y), shown.whiteAtTop ? 1 - fromTop : fromTop, exact);
        }
    }
    const Drawn slanted({20, 20}, 1, Orientation::YDown, [&](Canvas& canvas) {
        canvas.fill(Rect{0, 0, 20, 20}, whiteToBlack, 45);
    });
    EXPECT_NEAR(slanted.red(0, 0), 1 - 0.5 / 20, exact) << "the first color in the corner";
    EXPECT_NEAR(slanted.red(19, 0), 0.5, exact);
}

TEST(RasterCanvas, coversTheAreaOfCurvesAndThinStrokesWhereverTheyStand) {
    const double pi = std::numbers::pi;
    const Oval oval{{8.3, 8.3, 24, 24}};
    const RoundedRect pill{{5, 5, 30, 20}, {10, 10}};
    const RoundedRect backwards{{20, 20, -5, -10}, {8, 8}};
    const struct {
        std::function<void(Canvas&)> drawing;
        double area, tolerance;
    } cases[] = {
        {[&](Canvas& c) { c.fill(oval, color::white); }, pi * 144, 0.25},
        {[&](Canvas& c) { c.fill(pill, color::white); }, 200 + pi * 100, 0.25},
        // Both edges of a ring of half a pixel lie in the same pixels.
        {[&](Canvas& c) { c.stroke(pill, color::white, 0.5); }, 0.5 * (20 + 20 * pi), 0.1},
        {[&](Canvas& c) {
             c.stroke(Rect{10, 10, 8, 8}, color::white, 2);
         },
         100 - 36, exact},
        {[&](Canvas& c) {
             c.stroke(Line{{3, 4}, {33, 24}}, color::white, 1.5);
         },
         1.5 * std::hypot(30, 20), exact},
        // A negative size covers what it spans; radii of more than half of it make an ellipse.
        {[&](Canvas& c) { c.fill(backwards, color::white); }, pi * 2.5 * 5, 0.1},
        {[&](Canvas& c) {
             c.fill(Rect{-1e9, 12.25, 2e9, 0.5}, color::white);
         },
         20, exact},
        {[&](Canvas& c) {
             c.fill(Oval{{-30, 0, 60, 40}}, color::white);
         },
         pi * 30 * 20 / 2, 0.25},
        {[&](Canvas& c) {
             c.clip(oval);
             c.clip(Rect{0, 0, 20.3, 40});
             c.fill(Rect{0, 0, 40, 40}, color::white);
         },
         pi * 72, 0.25},
    };
    for (const auto& [drawing, area, tolerance] : cases)
        EXPECT_NEAR(Drawn({40, 40}, 1, Orientation::YDown, drawing).covered(), area, tolerance);
}

TEST(RasterCanvas, lightensWithThePremultipliedFormula) {
    struct Case {
        Color below, above;
        double red, alpha;
    };
    // Red is (1 - as) ab cb + as (1 - ab) cs + as ab max(cb, cs), all over the alpha.
    for (const Case& shown : {Case{Color::gray(0, 0.5), Color::gray(1, 0.6), 0.6 / 0.8, 0.8},
                              Case{color::clear, Color::gray(1, 0.6), 1, 0.6},
                              Case{Color::gray(0.7), Color::gray(0.2, 0.6), 0.7, 1}}) {
        const Drawn image({4, 4}, 1, Orientation::YDown, [&](Canvas& canvas) {
            canvas.fill(Rect{0, 0, 4, 4}, shown.below);
            canvas.setBlendMode(BlendMode::Lighten);
            canvas.fill(Rect{0, 0, 4, 4}, shown.above);
        });
        EXPECT_NEAR(image.red(1, 1), shown.red, exact);
        EXPECT_NEAR(image.alpha(1, 1), shown.alpha, exact);
    }
    const auto pixel = [](const Color& below, const Color& above) {
        const Drawn image({1, 1}, 1, Orientation::YDown, [&](Canvas& canvas) {
            canvas.fill(Rect{0, 0, 1, 1}, below);
            canvas.setBlendMode(BlendMode::Lighten);
            canvas.fill(Rect{0, 0, 1, 1}, above);
        });
        return *image.bitmap.row(0);
    };
    EXPECT_EQ(pixel({0.2, 0.8, 0.4, 1}, {0.6, 0.2, 0.6, 1}),
              pixel(color::clear, {0.6, 0.8, 0.6, 1}));
    EXPECT_EQ(pixel(color::clear, {0.2, 0.4, 0.6, 1}), 0xFFFF'9999'6666'3333U);
}

TEST(RasterCanvas, drawsALayerOnceWithTheStateOfItsBeginning) {
    const Drawn image({20, 20}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.saveState();
        canvas.clip(Rect{0, 0, 10.5, 20});
        canvas.beginTransparencyLayer();
        canvas.restoreState(); // belongs to nothing of the layer
        canvas.fill(Rect{0, 0, 20, 20}, color::white);
        canvas.setBlendMode(BlendMode::Clear);
        canvas.fill(Rect{2, 2, 2, 2}, color::white);
        canvas.endTransparencyLayer();
        canvas.restoreState();
        canvas.fill(Rect{0, 19, 20, 1}, color::white);
        canvas.restoreState();
        canvas.endTransparencyLayer();
    });
    EXPECT_NEAR(image.alpha(10, 5), 0.5, exact) << "the clip's edge counts once";
    EXPECT_EQ(image.alpha(11, 5), 0);
    EXPECT_EQ(image.alpha(3, 3), 0);
    EXPECT_EQ(image.alpha(15, 19), 1) << "the clip went with its state";
}

TEST(RasterCanvas, drawsImagesUprightAndSharpAtEveryScale) {
    RasterImageRenderer renderer;
    int times = 0;
    const auto image = renderer.render({10, 10}, [&times](Canvas& canvas) {
        ++times;
        EXPECT_FALSE(canvas.isFlipped());
        canvas.fill(Rect{0, 9.5, 10, 0.5}, color::white);
    });
    const auto draw = [&](const RasterView& view) {
        return Drawn(view, [&](Canvas& canvas) { canvas.drawImage(*image, {0, 0, 10, 10}, 0.5); });
    };
    for (const Orientation orientation : {Orientation::YDown, Orientation::YUp})
        for (const double scale : {1.0, 2.0}) {
            const Drawn pixels = draw({{10, 10}, orientation, scale, {}});
            EXPECT_NEAR(pixels.alpha(5, 0), scale == 2 ? 0.5 : 0.25, exact);
            EXPECT_EQ(pixels.alpha(5, 1), 0);
        }
    EXPECT_EQ(times, 4);
    draw({{10, 10}, Orientation::YUp, 1, {}});
    EXPECT_EQ(times, 5);
    const Drawn between = draw({{10, 10}, Orientation::YUp, 1, {0, 0.5}});
    EXPECT_EQ(times, 5) << "of the same scale";
    EXPECT_NEAR(between.alpha(5, 0), 0.125, exact);
    EXPECT_NEAR(between.alpha(5, 1), 0.125, exact);
}

TEST(RasterCanvas, drawsTextWithoutShadowOrModeAndCutsWhatDoesNotFit) {
    const Drawn image({80, 40}, 2, Orientation::YUp, [](Canvas& canvas) {
        canvas.setShadow({Color::gray(0), 6, {0, 0}});
        canvas.setBlendMode(BlendMode::Clear);
        canvas.drawText("twenty", {30.25, 10, 20, 12}, {12, color::white, TextAlignment::Left});
        canvas.drawText("", {0, 0, 20, 12}, {12, color::white, TextAlignment::Left});
        canvas.drawText("never", {0, 0, 0, 9}, {12, color::white, TextAlignment::Left});
        canvas.drawText("never", {0, 0, 9, 9}, {nan, color::white, TextAlignment::Left});
    });
    ASSERT_EQ(image.text.boxes.size(), 1U);
    EXPECT_EQ(image.text.boxes.front(), (Rect{0.5, 0, 40, 24})) << "in the buffer's pixels";
    EXPECT_NEAR(image.covered(), 40 * 24, exact);
    EXPECT_EQ(image.red(61, 40), 1);
    EXPECT_NEAR(image.alpha(60, 40), 0.5, exact) << "the box's edge";
}

void drawEverything(Canvas& canvas, const Rect& rect, double number) {
    const std::array<Path, 4> paths{rect, RoundedRect{rect, {number, number}}, Oval{rect},
                                    Line{{rect.x, rect.y}, {rect.width, rect.height}}};
    RasterImageRenderer renderer;
    const auto image = renderer.render(rect.size(), [](Canvas&) {});
    canvas.drawImage(*image, rect, number);
    canvas.drawText("text", rect, {number, color::white, TextAlignment::Right});
    for (const Path& path : paths) {
        canvas.saveState();
        const double blur = path.index() == 1 ? number : 3; // a wide one takes long
        canvas.setShadow({Color{number, 0, 0, number}, blur, {number, -number}});
        canvas.fill(path, Color{number, number, 0, 1});
        canvas.beginTransparencyLayer();
        canvas.stroke(path, Color::gray(0, number), number);
        canvas.endTransparencyLayer();
        canvas.clip(path);
        canvas.setBlendMode(BlendMode::Lighten);
        canvas.fill(path, Gradient{{{number, color::white}, {0, color::clear}}}, number);
        canvas.fill(path, Gradient{}, 90);
        canvas.restoreState();
    }
}

/// Run under the sanitizers as well: no number is undefined behaviour, or takes long.
TEST(RasterCanvas, bearsEveryNumber) {
    const double numbers[] = {nan, infinity, -1e308, 1e9, 1e-300, 0, 7};
    for (const double number : numbers)
        for (const Rect& rect : {Rect{number, 2, 8, 8}, Rect{2, 2, number, 8},
                                 Rect{-number, -number, 2 * number, 2 * number}})
            for (const double scale : {1.0, number}) {
                Bitmap bitmap(16, 16);
                RasterMemory memory;
                BlockText text;
                RasterCanvas canvas(bitmap, memory, text,
                                    {{16, number}, Orientation::YUp, scale, {0, number}});
                drawEverything(canvas, rect, number);
                for (int depth = 0; depth < 40; ++depth)
                    canvas.beginTransparencyLayer();
                drawEverything(canvas, rect, 3);
                const auto drawn = std::count_if(bitmap.row(0), bitmap.row(0) + 16 * 16,
                                                 [](Pixel pixel) { return pixel != 0; });
                EXPECT_TRUE(drawn == 0 || (scale > 0 && std::isfinite(number))) << number;
            }
    // Rows beside the bitmap have no pixels.
    const Drawn beside({8, 8}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.fill(Oval{{-9, 1, 5, 5}}, color::white);
    });
    EXPECT_EQ(beside.covered(), 0);
    // So flat that its sides' slope is no number.
    const Drawn flat({8, 8}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.fill(Oval{{1, 0, 6, 1e-310}}, color::white);
    });
    EXPECT_NEAR(flat.covered(), 0, exact);
    EXPECT_EQ(Bitmap(-5, 9).bounds(), (PixelRect{0, 0, 0, 9}));
    const Bitmap huge(1 << 30, 1 << 30);
    EXPECT_EQ(huge.width(), Bitmap::maxSide);
    EXPECT_EQ(huge.height(), 1024);
}

TEST(Bitmap, roundsToTheLayoutsOfToolkits) {
    Bitmap bitmap(1, 1);
    bitmap.row(0)[0] = 0xFFFF'8080'0180'0081; // alpha, blue, green, red: one, 128, 1.5, 0.5 steps
    std::array<std::uint8_t, 4> bytes{};
    bitmap.copyTo(bytes.data(), 4, PixelLayout::RgbaBytes);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 4>{1, 1, 128, 255}));
    std::uint32_t word = 0;
    bitmap.copyTo(reinterpret_cast<std::uint8_t*>(&word), 4, PixelLayout::Argb32Words);
    EXPECT_EQ(word, 0xFF010180U);
}

} // namespace

} // namespace zarvil
