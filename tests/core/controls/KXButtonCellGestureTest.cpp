#include "Fakes.h"
#include "controls/KXButtonCell.h"
#include "interface/Button.h"
#include "interface/MouseLoop.h"

#include <gtest/gtest.h>

#include <functional>

namespace zarvil {

namespace {

struct Target final : ActionTarget {
    void performAction(std::string_view, Control* sender) override {
        states.push_back(static_cast<Button*>(sender)->state());
        whenSent();
    }
    std::vector<int> states; ///< at each action
    std::function<void()> whenSent = [] {};
};

/// A switch of 60 by 26 points as a front end operates it.
class SwitchGesture : public testing::Test {
protected:
    SwitchGesture() {
        button.setFrame({100, 200, 60, 26});
        button.setTarget(&target);
        button.setAction("flip:");
    }

    /// Presses, waits, drags straight to the end and lets go there.
    int stateAfter(int before, Point from, Point to, double seconds) {
        button.setState(before);
        loop.press(from);
        time.advance(seconds);
        if (from != to)
            loop.drag(to);
        loop.release(to);
        return button.state();
    }

    fake::VirtualTime time;
    Button button{ButtonKind::Toggle, std::make_unique<KXButtonCell>(std::nullopt, time)};
    Target target;
    MouseLoop loop{button};
};

TEST_F(SwitchGesture, endsInTheStateThatTheGestureTells) {
    struct Case {
        const char* name;
        Point from;
        Point to;
        double seconds;
        std::optional<int> outcome; ///< none: the opposite of before
    };
    const std::vector<Case> cases{
        {"plain click", {10, 13}, {10, 13}, 0.1, std::nullopt},
        {"click that trembles", {10, 13}, {15.9, 18.9}, 0.29, std::nullopt},
        {"fast flick to the left over any distance", {40, 13}, {-300, 13}, 0.1, std::nullopt},
        {"fast flick to lower y over any distance", {40, 13}, {40, -300}, 0.1, std::nullopt},
        {"fast flick to the right", {10, 13}, {40, 13}, 0.1, 1},
        {"travel of just the bias is a drag", {10, 13}, {16, 13}, 0.1, 0},
        {"slow press at the left", {10, 13}, {10, 13}, 1, 0},
        {"released far outside", {10, 13}, {900, -400}, 1, 1},
        // 18 + (26 - 2) / 2 is the middle of 60.
        {"released exactly in the middle", {50, 13}, {18, 13}, 1, std::nullopt},
        {"just left of the middle", {50, 13}, {17.999, 13}, 1, 0},
        {"just right of the middle", {50, 13}, {18.001, 13}, 1, 1},
    };
    for (const Case& gesture : cases)
        for (const int before : {0, 1}) {
            target.states.clear();
            const int after = stateAfter(before, gesture.from, gesture.to, gesture.seconds);
            EXPECT_EQ(after, gesture.outcome.value_or(1 - before)) << gesture.name << " " << before;
            const std::vector<int> sent(after == before ? 0 : 1, after);
            EXPECT_EQ(target.states, sent) << gesture.name << " " << before;
        }
}

TEST_F(SwitchGesture, beginsOnlyOnAnEnabledSwitchAndEndsWithoutOutcomeWhenItIsBrokenOff) {
    EXPECT_FALSE(loop.press({60, 13})) << "the far edge is outside";
    button.setEnabled(false);
    EXPECT_FALSE(loop.press({10, 13}));
    button.setOn(true);
    for (const bool disabled : {true, false}) {
        button.setEnabled(true);
        EXPECT_TRUE(loop.press({10, 13}));
        EXPECT_TRUE(button.cell().isHighlighted());
        time.advance(1);
        loop.drag({45, 13});
        if (disabled)
            button.setEnabled(false);
        else
            loop.cancel();
        loop.release({45, 13});
        EXPECT_EQ(button.state(), 1) << "what the cell stored is taken back";
        EXPECT_FALSE(button.cell().isHighlighted() || loop.isPressed());
    }
    EXPECT_TRUE(target.states.empty());
}

TEST_F(SwitchGesture, ofAnotherCellCountsOnlyInsideAndSurvivesAnActionThatDestroysIt) {
    auto other = std::make_unique<Button>(ButtonKind::Toggle);
    other->setFrame({0, 0, 60, 26});
    other->setTarget(&target);
    other->setAction("press:");
    auto press = std::make_unique<MouseLoop>(*other);
    press->press({10, 13});
    press->drag({200, 13});
    EXPECT_FALSE(other->cell().isHighlighted());
    press->release({200, 13});
    EXPECT_TRUE(target.states.empty()) << "let go outside";
    target.whenSent = [&] {
        press.reset();
        other.reset();
    };
    press->press({10, 13});
    press->drag({200, 13});
    press->drag({40, 13});
    EXPECT_TRUE(other->cell().isHighlighted());
    press->release({40, 13});
    EXPECT_EQ(target.states, std::vector{1});
}

TEST_F(SwitchGesture, lastingJustTheTimeoutIsADrag) {
    // The clock's numbers are made so that the difference is exact.
    KXButtonCell cell(StickyClick{0.25, {6, 6}}, time);
    cell.setState(buttonState::off);
    cell.startTrackingAt({40, 13}, nullptr);
    time.advance(0.125);
    cell.stopTracking({40, 13}, {40, 13}, &button, true);
    EXPECT_EQ(cell.state(), buttonState::off);
    cell.setState(buttonState::on);
    cell.startTrackingAt({40, 13}, nullptr);
    time.advance(0.25);
    cell.stopTracking({40, 13}, {40, 13}, &button, true);
    EXPECT_EQ(cell.state(), buttonState::off) << "the opposite of on, before the advance";
}

TEST_F(SwitchGesture, turnsOnAMixedSwitch) {
    EXPECT_EQ(stateAfter(buttonState::mixed, {10, 13}, {10, 13}, 0.1), buttonState::on);
    EXPECT_EQ(stateAfter(buttonState::mixed, {50, 13}, {18, 13}, 1), buttonState::on);
    EXPECT_EQ(stateAfter(buttonState::mixed, {50, 13}, {5, 13}, 1), buttonState::off);
}

TEST_F(SwitchGesture, decidesByTheLastDragNotByThePlaceOfRelease) {
    loop.press({10, 13});
    time.advance(1);
    loop.drag({40, 13});
    loop.release({0, 13});
    EXPECT_EQ(button.state(), buttonState::on);
}

TEST_F(SwitchGesture, takesTheThresholdsFromTheDesktop) {
    const KXButtonCell cell(StickyClick{0.5, {20, 10}}, time);
    EXPECT_EQ(cell.stickyClick().timeout, 0.5);
    EXPECT_EQ(cell.stickyClick().bias, (Size{20, 10}));

    const StickyClick fallback = button.cellAs<KXButtonCell>()->stickyClick();
    EXPECT_EQ(fallback.timeout, 0.30000001192092896);
    EXPECT_EQ(fallback.bias, (Size{6, 6}));
}

TEST_F(SwitchGesture, comparesWithOneWithoutAControlView) {
    const std::vector<std::pair<double, int>> cases{{40, buttonState::off},
                                                    {1.5, buttonState::off},
                                                    {1, buttonState::mixed},
                                                    {0, buttonState::on}};
    for (const auto& [x, stored] : cases) {
        KXButtonCell cell(std::nullopt, time);
        cell.setState(buttonState::mixed);
        EXPECT_TRUE(cell.startTrackingAt({30, 13}, nullptr));
        EXPECT_TRUE(cell.continueTracking({30, 13}, {x, 13}, nullptr));
        time.advance(1);
        cell.stopTracking({x, 13}, {x, 13}, nullptr, true);
        EXPECT_EQ(cell.state(), stored) << x;
    }
}

TEST_F(SwitchGesture, redrawsAtOnceWhereTheControlViewCan) {
    int redrawn = 0;
    const Subscription counting = button.observeDrawCell([&] { ++redrawn; });
    loop.press({10, 13});
    loop.drag({12, 13});
    loop.drag({500, -90});
    EXPECT_EQ(redrawn, 2);
    loop.release({500, -90});
    EXPECT_EQ(redrawn, 2);
}

TEST_F(SwitchGesture, hitsContentAndTrackInsideTheFrameOnly) {
    const auto hit = [&](Point point) {
        return button.cell().hitTestForEvent(point, {5, 5, 60, 26}, &button);
    };
    EXPECT_EQ(hit({5, 5}), 5U);
    EXPECT_EQ(hit({64.9, 30.9}), 5U);
    EXPECT_EQ(hit({65, 10}), 0U);
    EXPECT_EQ(hit({10, 4.9}), 0U);
    EXPECT_TRUE(button.cell().prefersTrackingUntilMouseUp());
    EXPECT_EQ(static_cast<int>(button.cell().focusRingType()), 2);
}

} // namespace

} // namespace zarvil
