#include "Drawn.h"
#include "Fakes.h"

#include "controls/KXButtonCell.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zarvil::qt {

namespace {

/// How much of a Gaussian lies below a distance.
double normalShare(double distance, double deviation) {
    return 0.5 * std::erfc(-distance / (deviation * std::sqrt(2.0)));
}

constexpr Shadow blackShadow{Color::gray(0), 6, {0, 0}};

TEST(Shadow, isAGaussianOfHalfTheBlurRadiusInPointsAndLiesBeneath) {
    for (const double scale : {1.0, 2.0}) {
        const QImage image = drawn({80, 80}, scale, Orientation::YDown, [](Canvas& canvas) {
            canvas.setShadow(blackShadow);
            canvas.fill(Rect{40, -100, 200, 300}, Color::gray(1, 0.5));
        });
        for (const double x : {34.0, 37.0, 39.0}) {
            const double shade = 0.5 * normalShare(x + 0.5 / scale - 40, 3);
            EXPECT_NEAR(alphaAt(image, static_cast<int>(x * scale), static_cast<int>(40 * scale)),
                        shade, 1.5 * level)
                << scale << " " << x;
        }
        // Inside, the half-covering shape lies over its own shadow of half the black.
        EXPECT_NEAR(alphaAt(image, static_cast<int>(70 * scale), static_cast<int>(40 * scale)),
                    0.75, level);
        EXPECT_NEAR(redAt(image, static_cast<int>(70 * scale), static_cast<int>(40 * scale)),
                    0.5 / 0.75, level);
    }
}

TEST(Shadow, movesUpTheScreenWithAPositiveOffsetHoweverYGrows) {
    for (const Orientation orientation : {Orientation::YDown, Orientation::YUp}) {
        const QImage image = drawn({40, 40}, 1, orientation, [](Canvas& canvas) {
            canvas.setShadow({Color::gray(0), 0, {5, 8}});
            canvas.fill(Rect{10, 10, 20, 20}, color::white);
        });
        EXPECT_EQ(alphaAt(image, 32, 3), 1);
        EXPECT_EQ(redAt(image, 32, 3), 0);
        EXPECT_EQ(alphaAt(image, 20, 35), 0);
    }
}

TEST(Shadow, isCutByTheClipAndEndsWithItsState) {
    const QImage image = drawn({60, 30}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.saveState();
        canvas.clip(Rect{0, 0, 20, 30});
        canvas.setShadow(blackShadow);
        canvas.fill(Rect{10, 10, 10, 10}, color::white);
        canvas.restoreState();
        canvas.fill(Rect{40, 10, 10, 10}, color::white);
    });
    EXPECT_GT(alphaAt(image, 8, 15), 0.1);
    EXPECT_EQ(alphaAt(image, 20, 15), 0);
    EXPECT_EQ(alphaAt(image, 38, 15), 0);
}

/// The shadows of one shape at whole pixels are the same picture; between pixels they are not.
TEST(Shadow, isFoundAgainOnlyWhereItLooksTheSame) {
    const auto knobAt = [](double x) {
        return drawn({60, 40}, 2, Orientation::YDown, [x](Canvas& canvas) {
            canvas.setShadow(blackShadow);
            canvas.fill(Oval{{x, 9, 22, 22}}, color::white);
        });
    };
    const QImage first = knobAt(10);
    EXPECT_EQ(knobAt(20).copy(20, 0, 100, 80), first.copy(0, 0, 100, 80));
    EXPECT_NE(knobAt(10.25), first);
    EXPECT_EQ(knobAt(10), first);
}

TEST(Shadow, ofALayerIsTheShadowOfItsPicture) {
    const QImage image = drawn({60, 40}, 1, Orientation::YDown, [](Canvas& canvas) {
        canvas.setShadow({Color::gray(0), 0, {20, 0}});
        canvas.beginTransparencyLayer();
        canvas.fill(Rect{5, 10, 10, 10}, color::white);
        canvas.fill(Rect{5, 10, 10, 10}, color::white);
        canvas.endTransparencyLayer();
    });
    EXPECT_EQ(alphaAt(image, 30, 15), 1);
    EXPECT_EQ(redAt(image, 30, 15), 0);
    EXPECT_EQ(redAt(image, 10, 15), 1);
    EXPECT_EQ(alphaAt(image, 40, 15), 0);
}

QImage drawnSwitch(int state, bool enabled) {
    const fake::VirtualTime time;
    KXButtonCell cell(std::nullopt, time);
    cell.setState(state);
    cell.setEnabled(enabled);
    return drawn({60, 26}, 2, Orientation::YDown, [&](Canvas& canvas) {
        cell.drawWithFrame({0, 0, 60, 26}, nullptr, canvas);
    });
}

/// The switch's telling points, from the steps of its drawing: far from knob and edge lies the
/// gradient, less than 18 device pixels from the edge the outline's shadow darkens it.
TEST(SwitchPixels, showTrackKnobAndWash) {
    const QImage off = drawnSwitch(0, true);
    EXPECT_EQ(off.pixelColor(26, 26), QColor(Qt::white)) << "the knob's middle";
    EXPECT_EQ(alphaAt(off, 2, 2), 0) << "outside the pill";
    EXPECT_EQ(alphaAt(off, 0, 26), 0);
    EXPECT_GT(alphaAt(off, 80, 3), alphaAt(off, 80, 26)) << "darker at the top edge";
    EXPECT_GT(alphaAt(off, 80, 3), alphaAt(off, 80, 48)) << "than at the bottom edge";
    EXPECT_GT(alphaAt(off, 50, 26), alphaAt(off, 80, 26) + 0.1) << "the glow beside the knob";

    const QImage on = drawnSwitch(1, true);
    EXPECT_EQ(on.pixelColor(94, 26), QColor(Qt::white));
    EXPECT_LT(alphaAt(on, 26, 26), 0.6);

    const QImage disabled = drawnSwitch(0, false);
    EXPECT_EQ(disabled.pixelColor(26, 26), QColor(Qt::white)) << "white stays white";
    // Black of alpha a gets the wash's shadow and then the wash: 1 - (1 - a)(1 - 0.66)^2.
    const double track = alphaAt(off, 80, 26);
    EXPECT_NEAR(alphaAt(disabled, 80, 26), 1 - (1 - track) * 0.34 * 0.34, 2 * level);
    EXPECT_NEAR(redAt(disabled, 80, 26) * alphaAt(disabled, 80, 26), 0.66, 2 * level);
}

} // namespace

} // namespace zarvil::qt
