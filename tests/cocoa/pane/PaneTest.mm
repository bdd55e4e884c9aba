#import "cocoa/pane/Zarvil_Preferences.h"

#import "cocoa/messages/DistributedMessageCenter.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#import "RunLoop.h"

#include "pane/Zarvil_Preferences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

/// The host hands the pane a bundle of its own.
NSBundle* bundle() { return [NSBundle bundleWithPath:@ZARVIL_PANE_BUNDLE]; }

/// The pane with views made by code, one of the outlet's class each, and the agent's end.
struct PaneTest : ::testing::Test {
    PaneTest() {
        [pane.get() setMainView:view.get()];
#define ZV_MAKE(Class, name) add<Class>(@ #name);
        ZV_OUTLETS(ZV_MAKE)
    }
    ~PaneTest() override {
        // Views and pane know each other, as after a layout was loaded.
#define ZV_FORGET(Class, name) [pane.get() setValue:nil forKey:@ #name];
        ZV_OUTLETS(ZV_FORGET)
    }

    template <typename Class>
    void add(NSString* name) {
        const auto made = Ref<Class>::adopt([[Class alloc] init]);
        [pane.get() setValue:made.get() forKey:name];
        if ([made.get() isKindOfClass:[NSView class]])
            [view.get() addSubview:(NSView*)(id)made.get()];
    }

    void wire(NSButton* button, SEL action) const {
        [button setButtonType:NSSwitchButton];
        [button setTarget:pane.get()];
        [button setAction:action];
    }

    const Message* waitFor(std::string_view name) {
        const auto found = [&] {
            return std::ranges::find(received, name, &Message::name) != received.end();
        };
        return spinUntil(found) ? &*std::ranges::find(received, name, &Message::name) : nullptr;
    }

    Ref<NSView> view =
        Ref<NSView>::adopt([[NSView alloc] initWithFrame:NSMakeRect(0, 0, 595, 400)]);
    Ref<::Zarvil_Preferences> pane =
        Ref<::Zarvil_Preferences>::adopt([[::Zarvil_Preferences alloc] initWithBundle:bundle()]);
    DistributedMessageCenter agent;
    std::vector<Message> received;
    std::vector<Subscription> observed;

    void listen(std::string_view name) {
        observed.push_back(agent.addObserver(
            name, [this](const Message& message) { received.push_back(message); }));
    }
};

TEST_F(PaneTest, asksForTheSettingsShowsThemAndSendsEachChangeBack) {
    wire([pane.get() launchAtLogin], @selector(setShouldLaunchAtLogin:));
    listen("ZVPrefsLoaded");
    listen("ZVPrefsChanged");
    [pane.get() mainViewDidLoad];
    ASSERT_TRUE(waitFor("ZVPrefsLoaded"));
    EXPECT_FALSE([[pane.get() launchAtLogin] isEnabled]) << "no agent yet";
    EXPECT_FALSE([pane.get() isUnlocked]);

    agent.post(Message("ZVSavedPrefs", {{"LaunchAtLogin", true}, {"ShutdownDelay", 90}}));
    agent.post(Message("ZVPingTest"));
    ASSERT_TRUE(spinUntil([&] { return [[pane.get() launchAtLogin] isEnabled]; }));
    EXPECT_EQ([[pane.get() launchAtLogin] state], NSOnState);
    EXPECT_TRUE([[[pane.get() shutdownDelayText] stringValue] isEqualToString:@"90"]);

    [[pane.get() launchAtLogin] performClick:nil];
    const Message* change = waitFor("ZVPrefsChanged");
    ASSERT_TRUE(change);
    EXPECT_EQ(change->info(), (Dictionary{{"prefKey", "LaunchAtLogin"}, {"prefObj", false}}));
    EXPECT_EQ([pane.get() shouldUnselect], NSUnselectNow);
}

TEST_F(PaneTest, respondsToEveryActionOfTheController) {
    for (const std::string_view name : zarvil::Zarvil_Preferences::actionNames())
        EXPECT_TRUE([pane.get() respondsToSelector:NSSelectorFromString(toCocoa(name))]) << name;
}

TEST_F(PaneTest, withoutAMainViewTheHostsCallsAreHarmless) {
    const auto empty =
        Ref<::Zarvil_Preferences>::adopt([[::Zarvil_Preferences alloc] initWithBundle:bundle()]);
    [empty.get() mainViewDidLoad];
    [empty.get() willSelect];
    [empty.get() toggleOnOff:nil];
    EXPECT_EQ([empty.get() shouldUnselect], NSUnselectNow);
    [empty.get() willUnselect];
    [empty.get() didUnselect];
}

} // namespace

} // namespace zarvil::cocoa
