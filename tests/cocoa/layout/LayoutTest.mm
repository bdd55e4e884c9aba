#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

#import "RunLoop.h"

#include <gtest/gtest.h>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

NSString* name(int number) { return [NSString stringWithFormat:@"UPS %05d", number]; }

void post(NSString* message, NSDictionary* info) {
    [[NSDistributedNotificationCenter defaultCenter] postNotificationName:message
                                                                   object:nil
                                                                 userInfo:info
                                                       deliverImmediately:YES];
}

NSDictionary* device(int number) {
    return
        [NSDictionary dictionaryWithObjectsAndKeys:name(number), @"DeviceName", name(number),
                                                   @"DeviceSerial", @"Maker", @"DeviceVendor", nil];
}

/// Whether a text is among the views.
bool shows(NSView* view, NSString* wanted) {
    if ([view isKindOfClass:[NSTextField class]] &&
        [[static_cast<NSTextField*>(view) stringValue] isEqualToString:wanted])
        return true;
    NSEnumerator* subviews = [[view subviews] objectEnumerator];
    while (NSView* subview = [subviews nextObject])
        if (shows(subview, wanted))
            return true;
    return false;
}

/// The pane as a host has it, from its bundle.
struct LayoutTest : ::testing::Test {
    LayoutTest() {
        NSBundle* bundle = [NSBundle bundleWithPath:@ZARVIL_PANE_BUNDLE];
        pane = [[[bundle principalClass] alloc] initWithBundle:bundle];
        [pane loadMainView];
        [pane mainViewDidLoad];
        [pane willSelect];
    }
    ~LayoutTest() override {
        [pane willUnselect];
        [pane didUnselect];
    }

    id outlet(NSString* key) const { return [pane valueForKey:key]; }

    // Kept: a layout holds on to its owner.
    NSPreferencePane* pane = nil;
};

TEST_F(LayoutTest, makesCardsOfTheDevicesInSightAlone) {
    ASSERT_TRUE([pane mainView]);
    constexpr int count = 1'000;
    NSMutableArray* devices = [NSMutableArray array];
    for (int number = 0; number < count; ++number)
        [devices addObject:device(number)];
    // An agent that comes back empties the lists.
    post(@"ZVPingTest", [NSDictionary dictionary]);
    ASSERT_TRUE(spinUntil([&] { return [outlet(@"notLaunchedDesc") isHidden]; }));
    post(@"ZVAllConnectedDevices", [NSDictionary dictionaryWithObject:devices forKey:@"devices"]);
    NSView* list = outlet(@"connectedDevices");
    ASSERT_TRUE(spinUntil([&] { return shows(list, name(0)); }));
    EXPECT_LT([[list subviews] count], 20U);
    EXPECT_FALSE(shows(list, name(count - 1)));

    [list scrollPoint:NSMakePoint(0, NSMaxY([list bounds]))];
    ASSERT_TRUE(spinUntil([&] { return shows(list, name(count - 1)); }));
    EXPECT_FALSE(shows(list, name(0)));
    EXPECT_LT([[list subviews] count], 20U);

    post(@"ZVDeviceDisconnected", device(count - 1));
    EXPECT_TRUE(spinUntil([&] { return !shows(list, name(count - 1)); }));
    EXPECT_TRUE(shows(list, name(count - 2)));
}

} // namespace

} // namespace zarvil::cocoa
