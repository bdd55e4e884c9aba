#import "cocoa/adapters/CocoaPlatform.h"
#import "cocoa/binding/OutletBinder.h"
#import "cocoa/pane/Zarvil_Preferences.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#import "RunLoop.h"

#include "pane/Zarvil_Preferences.h"

#include <gtest/gtest.h>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

/// The layouts of the bundle around a controller of the test's.
struct LayoutTest : ::testing::Test {
    LayoutTest() {
        [pane.get() loadMainView];
        faults = bindOutlets(controller, pane.get(), platform, controls, kept);
    }
    ~LayoutTest() override { kept.clear(); }

    void list(int count) {
        for (int number = 0; number < count; ++number)
            controller.arrayController.addObject(
                makeRecord({{"DeviceName", name(number)}, {"DeviceSerial", name(number)}}));
    }
    static std::string name(int number) {
        std::string digits = std::to_string(number);
        return "UPS " + std::string(5 - digits.size(), '0') + digits;
    }
    NSView* devices() const { return [pane.get() connectedDevices]; }
    /// Whether a card of that name is among the views.
    bool shows(const std::string& wanted) const { return shows(devices(), wanted); }
    static bool shows(NSView* view, const std::string& wanted) {
        if ([view isKindOfClass:[NSTextField class]] &&
            fromCocoa([static_cast<NSTextField*>(view) stringValue]) == wanted)
            return true;
        NSEnumerator* subviews = [[view subviews] objectEnumerator];
        while (NSView* subview = [subviews nextObject])
            if (shows(subview, wanted))
                return true;
        return false;
    }

    Ref<::Zarvil_Preferences> pane = Ref<::Zarvil_Preferences>::adopt([[::Zarvil_Preferences alloc]
        initWithBundle:[NSBundle bundleWithPath:@ZARVIL_PANE_BUNDLE]]);
    CocoaPlatform platform{""};
    zarvil::Zarvil_Preferences controller{platform.platform()};
    OperatedControls controls;
    Subscriptions kept;
    Faults faults;
};

TEST_F(LayoutTest, hasAViewOfTheRightKindForEveryOutlet) {
    ASSERT_TRUE([pane.get() mainView]);
    for (const std::string& fault : faults)
        ADD_FAILURE() << fault;
    [[pane.get() tabView] selectTabViewItemAtIndex:3];
    EXPECT_EQ(controller.guidance.selectedTabProperty().get(), Tab::Scripts);
    controller.guidance.selectTab(Tab::Alerts);
    EXPECT_EQ([[pane.get() tabView] indexOfTabViewItem:[[pane.get() tabView] selectedTabViewItem]],
              2);
}

TEST_F(LayoutTest, makesCardsOfTheDevicesInSightAlone) {
    list(10'000);
    ASSERT_TRUE(spinUntil([&] { return shows(name(0)); }));
    EXPECT_LT([[devices() subviews] count], 20U);
    EXPECT_FALSE(shows(name(9'999)));

    [devices() scrollPoint:NSMakePoint(0, NSMaxY([devices() bounds]))];
    ASSERT_TRUE(spinUntil([&] { return shows(name(9'999)); }));
    EXPECT_FALSE(shows(name(0)));
    EXPECT_LT([[devices() subviews] count], 20U);

    controller.arrayController.removeObject(controller.arrayController.arrangedObjects()[9'999]);
    EXPECT_TRUE(spinUntil([&] { return !shows(name(9'999)) && shows(name(9'998)); }));
    controller.arrayController.removeAllArrangedObjects();
    EXPECT_TRUE(spinUntil([&] { return [[devices() subviews] count] == 0; }));
}

} // namespace

} // namespace zarvil::cocoa
