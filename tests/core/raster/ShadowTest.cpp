#include "Drawn.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zarvil {

namespace {

/// How much of a Gaussian lies below a distance.
double normalShare(double distance, double deviation) {
    return 0.5 * std::erfc(-distance / (deviation * std::sqrt(2.0)));
}

constexpr Shadow blackShadow{Color::gray(0), 6, {0, 0}};

TEST(Shadow, isAGaussianOfHalfTheBlurRadiusInPointsAndLiesBeneath) {
    for (const double scale : {1.0, 2.0}) {
        const Drawn image({80, 80}, scale, Orientation::YDown, [](Canvas& canvas) {
            canvas.setShadow(blackShadow);
            canvas.fill(Rect{40, -100, 200, 300}, Color::gray(1, 0.5));
        });
        const int middle = static_cast<int>(40 * scale);
        for (const double x : {34.0, 37.0, 39.0}) {
            const double shade = 0.5 * normalShare(x + 0.5 / scale - 40, 3);
            EXPECT_NEAR(image.alpha(static_cast<int>(x * scale), middle), shade, 1.0 / 255);
        }
        // Inside, the half-covering shape lies over its own shadow of half the black.
        EXPECT_NEAR(image.alpha(static_cast<int>(70 * scale), middle), 0.75, exact);
        EXPECT_NEAR(image.red(static_cast<int>(70 * scale), middle), 0.5 / 0.75, exact);
    }
}

TEST(Shadow, movesUpTheScreenWithAPositiveOffsetHoweverYGrows) {
    for (const Orientation orientation : {Orientation::YDown, Orientation::YUp}) {
        const Drawn image({40, 40}, 1, orientation, [](Canvas& canvas) {
            canvas.setShadow({Color::gray(0), 0, {5, 8}});
            canvas.fill(Rect{10, 10, 20, 20}, color::white);
        });
        EXPECT_EQ(image.alpha(32, 3), 1);
        EXPECT_EQ(image.red(32, 3), 0);
        EXPECT_EQ(image.alpha(20, 35), 0);
    }
}

TEST(Shadow, isCutByTheClipAndEndsWithItsState) {
    const Drawn image({60, 30}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.saveState();
        canvas.clip(Rect{0, 0, 20, 30});
        canvas.setShadow(blackShadow);
        canvas.fill(Rect{10, 10, 10, 10}, color::white);
        canvas.restoreState();
        canvas.fill(Rect{40, 10, 10, 10}, color::white);
    });
    EXPECT_GT(image.alpha(8, 15), 0.1);
    EXPECT_EQ(image.alpha(20, 15), 0);
    EXPECT_EQ(image.alpha(38, 15), 0);
}

/// What is kept from one drawing to the next never shows: each picture is the one that a canvas
/// without a past draws.
TEST(Shadow, andClipsAreFoundAgainOnlyWhereTheyLookTheSame) {
    RasterMemory memory;
    BlockText text;
    const auto knobAt = [&](RasterMemory& used, double x, double angle, const RasterView& view) {
        Bitmap bitmap(120, 80);
        RasterCanvas canvas(bitmap, used, text, view);
        canvas.clip(RoundedRect{{2, 2, 56, 36}, {angle, angle}});
        canvas.setShadow(blackShadow);
        canvas.fill(Oval{{x, 9, 22, 22}}, Color::gray(1, angle / 20));
        canvas.stroke(Line{{x, 5}, {x + angle, 30}}, color::white, 1);
        // As large as each other, and with different shadows.
        if (angle > 10)
            canvas.fill(Rect{x, 9, 22, 22}, color::white);
        else
            canvas.stroke(Rect{x + 0.5, 9.5, 21, 21}, color::white, 1);
        return std::vector<Pixel>(bitmap.row(0), bitmap.row(0) + 120 * 80);
    };
    const RasterView twice{{60, 40}, Orientation::YDown, 2, {}};
    for (const RasterView& view : {twice, RasterView{{60, 40}, Orientation::YUp, 2, {}},
                                   RasterView{{60, 40}, Orientation::YDown, 2, {0.5, 0}},
                                   RasterView{{60, 40}, Orientation::YDown, 1.5, {}}, twice})
        for (const double x : {10.0, 20.0, 10.25, -5.0, 10.0})
            for (const double angle : {18.0, 9.0}) {
                RasterMemory fresh;
                EXPECT_EQ(knobAt(memory, x, angle, view), knobAt(fresh, x, angle, view)) << x;
            }
}

TEST(Shadow, ofATranslucentGradientIsAsTranslucent) {
    const Drawn image({40, 20}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.setShadow({Color::gray(0), 0, {20, 0}});
        canvas.fill(Rect{0, 0, 20, 20}, Gradient{{{0, color::clear}, {1, color::white}}}, 0);
    });
    EXPECT_NEAR(image.alpha(25, 10), 5.5 / 20, 1.0 / 255);
}

TEST(Shadow, ofAClipInALayerIsNotTakenForOneWithinAnother) {
    BlockText text;
    const auto draw = [&text](RasterMemory& memory, bool inLayer) {
        Bitmap bitmap(40, 40);
        RasterCanvas canvas(bitmap, memory, text, {{40, 40}, Orientation::YDown, 1, {}});
        canvas.clip(Oval{{0, 0, 40, 40}});
        if (inLayer)
            canvas.beginTransparencyLayer();
        canvas.clip(RoundedRect{{0, 0, 20, 20}, {4, 4}});
        canvas.fill(Rect{0, 0, 40, 40}, color::white);
        if (inLayer)
            canvas.endTransparencyLayer();
        return std::vector<Pixel>(bitmap.row(0), bitmap.row(0) + 40 * 40);
    };
    RasterMemory used;
    draw(used, true);
    RasterMemory fresh;
    EXPECT_EQ(draw(used, false), draw(fresh, false));
}

TEST(Shadow, thatWasDrawnLongestAgoIsForgottenFirst) {
    raster::ShadowCache cache;
    constexpr int side = 500; // two of them fit
    for (const double number : {1.0, 2.0, 1.0, 3.0})
        if (!cache.find({number})) {
            raster::Mask mask;
            mask.reset({0, 0, side, side});
            cache.insert({number}, std::move(mask));
        }
    EXPECT_EQ(cache.find({2.0}), nullptr);
    EXPECT_TRUE(cache.find({1.0}) && cache.find({3.0}));
}

TEST(Shadow, ofALayerIsTheShadowOfItsPicture) {
    for (const std::size_t depth : {RasterCanvas::maxLayers, RasterCanvas::maxLayers + 1}) {
        const Drawn image({40, 20}, 1, Orientation::YDown, [depth](Canvas& canvas) {
            for (std::size_t layer = 1; layer < depth; ++layer)
                canvas.beginTransparencyLayer();
            canvas.setShadow({Color::gray(0), 0, {20, 0}});
            canvas.beginTransparencyLayer();
            canvas.fill(Rect{5, 5, 10, 10}, color::white);
            for (std::size_t layer = 0; layer < depth; ++layer)
                canvas.endTransparencyLayer();
        });
        EXPECT_EQ(image.alpha(30, 10), depth == RasterCanvas::maxLayers ? 1 : 0) << depth;
    }
    const Drawn image({60, 40}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.setShadow({Color::gray(0), 0, {20, 0}});
        canvas.beginTransparencyLayer();
        canvas.fill(Rect{5, 10, 10, 10}, color::white);
        canvas.fill(Rect{5, 10, 10, 10}, color::white);
        canvas.endTransparencyLayer();
    });
    EXPECT_EQ(image.alpha(30, 15), 1);
    EXPECT_EQ(image.red(30, 15), 0);
    EXPECT_EQ(image.red(10, 15), 1);
    EXPECT_EQ(image.alpha(40, 15), 0);
}

} // namespace

} // namespace zarvil
