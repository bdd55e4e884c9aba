#import "cocoa/binding/Bindings.h"
#import "cocoa/controls/KXButtonCell.h"

#import "Window.h"

#include "controls/KXButtonCell.h"
#include "interface/Button.h"
#include "posix/PosixClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

/// Counts the actions that reach a target.
@interface ZVActionLog : NSObject {
@public
    int count;
    void* operated; ///< a `zarvil::cocoa::Operated`, or null
}
- (void)note:(id)sender;
@end

@implementation ZVActionLog
- (void)note:(id)sender {
    ++count;
    if (operated)
        (*static_cast<zarvil::cocoa::Operated*>(operated))();
}
@end

// At the top: the core has a class of the same name.
namespace {

using zarvil::cocoa::Ref;

struct SwitchTest : ::testing::Test {
    SwitchTest() {
        [button.get() setCell:cell.get()];
        [button.get() setTarget:log.get()];
        [button.get() setAction:@selector(note:)];
        [window.content() addSubview:button.get()];
    }

    /// What the base cell's mouse loop asks of the cell, the last point being where it lets go.
    void press(NSPoint start, const std::vector<NSPoint>& path) const {
        [cell.get() startTrackingAt:start inView:button.get()];
        NSPoint last = start;
        for (const NSPoint& point : path) {
            [cell.get() continueTracking:last at:point inView:button.get()];
            last = point;
        }
        [cell.get() stopTracking:last at:last inView:button.get() mouseIsUp:YES];
        [cell.get() setNextState];
        [button.get() sendAction:[button.get() action] to:[button.get() target]];
    }

    int brightness(NSPoint point) const {
        NSBitmapImageRep* pixels = window.picture(button.get());
        const auto* row =
            [pixels bitmapData] + static_cast<NSInteger>(point.y) * [pixels bytesPerRow];
        return row[static_cast<NSInteger>(point.x) * [pixels samplesPerPixel]];
    }
    bool knobIsRight() const { return brightness({47, 13}) > brightness({13, 13}); }

    zarvil::cocoa::test::Window window;
    Ref<ZVActionLog> log = Ref<ZVActionLog>::adopt([[ZVActionLog alloc] init]);
    Ref<KXButtonCell> cell = Ref<KXButtonCell>::adopt([[KXButtonCell alloc] init]);
    Ref<NSButton> button =
        Ref<NSButton>::adopt([[NSButton alloc] initWithFrame:NSMakeRect(20, 20, 60, 26)]);
};

TEST_F(SwitchTest, clickAndDragFlipItAndWhatIsSeen) {
    EXPECT_FALSE(knobIsRight());
    press({10, 13}, {});
    EXPECT_EQ([button.get() state], NSOnState);
    EXPECT_EQ(log.get()->count, 1);
    EXPECT_TRUE(knobIsRight());
    press({20, 13}, {{50, 13}, {80, 13}, {55, 13}});
    EXPECT_EQ([button.get() state], NSOnState) << "let go on the side where it was";
}

TEST_F(SwitchTest, showsAModelAndSendsNothingForAGestureThatLeavesIt) {
    const zarvil::posix::PosixClock clock;
    zarvil::Button model(zarvil::ButtonKind::Toggle,
                         std::make_unique<zarvil::KXButtonCell>(std::nullopt, clock));
    struct Target final : zarvil::ActionTarget {
        void performAction(std::string_view name, zarvil::Control* sender) override {
            sent +=
                std::string(name) + std::to_string(static_cast<zarvil::Button*>(sender)->state());
        }
        std::string sent;
    } target;
    model.setTarget(&target);
    model.setAction("toggleMinutesSeconds:");
    [cell.get() setOnTitle:@"Min"];
    [cell.get() setBackgroundColor:[NSColor greenColor]];
    zarvil::cocoa::Subscriptions kept;
    zarvil::cocoa::Operated operated = zarvil::cocoa::bindButton(model, button.get(), kept);
    log.get()->operated = &operated;
    EXPECT_EQ(model.cellAs<zarvil::KXButtonCell>()->onTitle(), "Min") << "as the layout set it";
    EXPECT_EQ(model.cellAs<zarvil::KXButtonCell>()->backgroundColor(), (zarvil::Color{0, 1, 0, 1}));

    press({10, 13}, {});
    EXPECT_EQ(target.sent, "toggleMinutesSeconds:1");
    press({20, 13}, {{50, 13}, {80, 13}, {55, 13}});
    EXPECT_EQ(target.sent, "toggleMinutesSeconds:1");
    model.setState(zarvil::buttonState::off);
    EXPECT_EQ([button.get() state], NSOffState);
    EXPECT_FALSE(knobIsRight());
    [button.get() performClick:nil];
    EXPECT_EQ(target.sent, "toggleMinutesSeconds:1toggleMinutesSeconds:1") << "by the keyboard";
    kept.clear();
    EXPECT_EQ([button.get() state], NSOffState) << "its own state again";
}

TEST_F(SwitchTest, aCopyIsOfItsOwn) {
    [cell.get() setOffTitle:@"Sec"];
    [cell.get() setState:NSOnState];
    const auto copy = Ref<KXButtonCell>::adopt([cell.get() copy]);
    [cell.get() setOffTitle:@"other"];
    [cell.get() setState:NSOffState];
    EXPECT_TRUE([[copy.get() offTitle] isEqualToString:@"Sec"]);
    EXPECT_EQ([copy.get() state], NSOnState);
}

} // namespace
