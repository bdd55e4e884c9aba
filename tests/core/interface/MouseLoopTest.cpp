#include "interface/MouseLoop.h"

#include "interface/Button.h"

#include <gtest/gtest.h>

namespace zarvil {

namespace {

/// Logs how it is tracked; like the standard cell it does not track outside its frame.
struct LoggingCell final : ButtonCell {
    bool startTrackingAt(Point, View* view) override {
        log += view ? "start " : "start without view ";
        return true;
    }
    bool continueTracking(Point last, Point current, View*) override {
        log += "move" + std::to_string(static_cast<int>(last.x)) + "-" +
               std::to_string(static_cast<int>(current.x)) + " ";
        return true;
    }
    void stopTracking(Point, Point, View*, bool mouseIsUp) override {
        log += mouseIsUp ? "up " : "stop ";
        setState(7);
    }

    std::string log;
};

struct Target final : ActionTarget {
    void performAction(std::string_view, Control* sender) override {
        states.push_back(static_cast<Button*>(sender)->state());
    }
    std::vector<int> states;
};

class MouseLoopTest : public testing::Test {
protected:
    MouseLoopTest() {
        button.setFrame({500, 500, 100, 20});
        button.setTarget(&target);
        button.setAction("press:");
    }

    Button button{ButtonKind::Toggle, std::make_unique<LoggingCell>()};
    LoggingCell& cell = *button.cellAs<LoggingCell>();
    Target target;
    MouseLoop loop{button};
};

TEST_F(MouseLoopTest, advancesOnceAndSendsTheActionAfterThat) {
    EXPECT_TRUE(loop.press({10, 10}));
    EXPECT_TRUE(cell.isHighlighted());
    loop.drag({20, 10});
    loop.release({30, 10});
    EXPECT_EQ(cell.log, "start move10-20 up ");
    EXPECT_EQ(target.states, std::vector{1}) << "7 advances to on";
    EXPECT_FALSE(cell.isHighlighted());
    EXPECT_FALSE(loop.isPressed());
    loop.release({30, 10});
    EXPECT_EQ(target.states.size(), 1U);
}

TEST_F(MouseLoopTest, followsAStandardCellOnlyInside) {
    loop.press({10, 10});
    loop.drag({200, 10});
    EXPECT_FALSE(cell.isHighlighted());
    loop.drag({300, 10});
    loop.drag({40, 10});
    EXPECT_TRUE(cell.isHighlighted());
    loop.release({200, 10});
    EXPECT_EQ(cell.log, "start stop start up ");
    EXPECT_TRUE(target.states.empty()) << "let go outside";
}

TEST_F(MouseLoopTest, doesNotBeginWhereNothingIsHit) {
    EXPECT_FALSE(loop.press({100, 10})) << "the far edge is outside";
    button.setEnabled(false);
    EXPECT_FALSE(loop.press({10, 10}));
    button.setEnabled(true);
    button.setFrame({0, 0, 0, 0});
    EXPECT_FALSE(loop.press({0, 0}));
    loop.drag({5, 5});
    loop.release({5, 5});
    EXPECT_EQ(cell.log, "");
    EXPECT_TRUE(target.states.empty());
}

TEST_F(MouseLoopTest, endsWithoutOutcomeWhenCancelledOrDisabledMeanwhile) {
    loop.press({10, 10});
    loop.cancel();
    EXPECT_EQ(button.state(), 0) << "what the cell stored is taken back";
    loop.press({10, 10});
    button.setEnabled(false);
    loop.release({10, 10});
    EXPECT_EQ(cell.log, "start stop start stop ");
    EXPECT_EQ(button.state(), 0);
    EXPECT_TRUE(target.states.empty());
    EXPECT_FALSE(cell.isHighlighted());
}

/// Destroys what it was sent from.
struct Destroying final : ActionTarget {
    void performAction(std::string_view, Control*) override {
        loop.reset();
        button.reset();
    }
    std::unique_ptr<Button> button;
    std::unique_ptr<MouseLoop> loop;
};

TEST(MouseLoop, survivesAnActionThatDestroysIt) {
    Destroying target;
    target.button = std::make_unique<Button>();
    target.button->setFrame({0, 0, 10, 10});
    target.button->setTarget(&target);
    target.button->setAction("close:");
    target.loop = std::make_unique<MouseLoop>(*target.button);
    target.loop->press({1, 1});
    target.loop->release({1, 1});
    EXPECT_EQ(target.button, nullptr);
}

} // namespace

} // namespace zarvil
