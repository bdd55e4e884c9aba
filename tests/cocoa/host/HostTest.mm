#import "MiniHost.h"

#import "NotificationServers.h"

#import "cocoa/support/Pool.h"

#include "ControlCases.h"

#import <GNUstepBase/GSObjCRuntime.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace zarvil::cocoa {

namespace {

using test::MiniHost;
using test::PlayedAgent;
using test::runUntil;

NSString* const bundlePath = @ZARVIL_PANE_BUNDLE;

/// The bundle's pane in a window, with an agent that is up.
struct Host : ::testing::Test {
    void SetUp() override { bringUp(); }

    /// As the agent does: the settings first, then what shows that it is there.
    void bringUp() {
        ASSERT_TRUE(host.window()) << "no main view";
        ASSERT_TRUE(runUntil([this] { return heardOf(message::prefsLoaded); }));
        ASSERT_TRUE(agent.sendUntil(Message(message::savedPrefs, settingsOfCases()),
                                    [this] { return isOn("showIcon"); }));
        agent.send(Message(message::pingAnswer));
        ASSERT_TRUE(runUntil([this] { return isPresent(); }));
        reset();
    }

    bool heardOf(std::string_view name) const {
        return std::ranges::find(agent.heard, name, &Message::name) != agent.heard.end();
    }
    bool isPresent() const { return [host.outlet("togglePowerButton") isEnabled]; }
    bool isOn(const char* outlet) const { return [host.outlet(outlet) state] == NSOnState; }
    std::string text(const char* outlet) const {
        return [[host.outlet<NSTextField>(outlet) stringValue] UTF8String];
    }

    /// The state in which each case of the table begins.
    void reset() {
        agent.send(Message(message::stateChanged, Dictionary{{"state", true}}));
        const std::string mark = "reset " + std::to_string(++resets);
        Dictionary settings = settingsOfCases();
        settings.setObject("PushDeviceId", mark);
        agent.send(Message(message::savedPrefs, settings));
        ASSERT_TRUE(runUntil([&] { return text("pushDeviceName") == mark; }));
        (void)sentBy([] {});
    }

    /// What the pane sends for an act of the user; it comes before what another control sends.
    std::string sentBy(const std::function<void()>& act) {
        act();
        const auto marks = std::ranges::count(agent.heard, message::viewLog, &Message::name);
        host.click(host.outlet("viewLogButton"));
        EXPECT_TRUE(runUntil([&] {
            return std::ranges::count(agent.heard, message::viewLog, &Message::name) > marks;
        }));
        agent.heard.pop_back();
        std::string all;
        for (const Message& sent : agent.heard)
            all += (all.empty() ? "" : "; ") + described(sent);
        agent.heard.clear();
        return all;
    }

    PlayedAgent agent;
    Ref<NSPreferencePane> pane = MiniHost::newPane(bundlePath);
    MiniHost host{pane.get()};
    int resets = 0;
};

TEST_F(Host, everyControlSendsWhatTheTableSays) {
    for (const ControlCase& c : controlCases) {
        reset();
        NSControl* control = host.outlet<NSControl>(c.outlet);
        ASSERT_TRUE(control) << c.outlet;
        EXPECT_EQ(sentBy([&] {
                      if (c.typed.empty())
                          host.click(control);
                      else
                          host.type(static_cast<NSTextField*>(control), c.typed);
                  }),
                  c.sent)
            << c.outlet;
    }
}

TEST_F(Host, everyMessageOfTheAgentShows) {
    const Dictionary device{
        {"DeviceName", "UPS"}, {"DeviceVendor", "V"}, {"DeviceSerial", "1"}, {"Further", 1}};
    const auto rows = [this](const char* list) {
        return [[host.outlet<NSView>(list) subviews] count];
    };
    agent.send(Message(message::deviceConnected, device));
    EXPECT_TRUE(runUntil([&] { return rows("connectedDevices") == 1; }));
    agent.send(Message(message::newSavedDevice, Dictionary{{"device", device}}));
    EXPECT_TRUE(runUntil([&] { return rows("selectedDevices") == 1; }));
    EXPECT_TRUE(runUntil([&] { return rows("connectedDevices") == 0; })) << "it has moved";
    agent.send(Message(message::deviceDisconnected, device));
    agent.send(Message(message::allSavedDevices, Dictionary{{"devices", Array{device, device}}}));
    agent.send(Message(message::allConnectedDevices, Dictionary{{"devices", Array{}}}));
    agent.send(Message(message::allDevices, Dictionary{{"devices", Array{}}}));
    agent.send(Message(message::stateChanged, Dictionary{{"state", false}}));
    EXPECT_TRUE(runUntil([&] { return !isOn("togglePowerButton"); }));

    host.click(host.outlet("pushValidate"));
    EXPECT_TRUE(runUntil([this] { return heardOf(message::validatePushover); }));
    EXPECT_FALSE([host.outlet("pushValidate") isEnabled]);
    agent.send(Message(message::pushValidationFinished, Dictionary{{"code", 1}}));
    EXPECT_TRUE(runUntil([&] { return [host.outlet("pushValidate") isEnabled]; }));
    EXPECT_FALSE([host.outlet<NSTextField>("pushValidationStatus") isHidden]);
    EXPECT_FALSE(text("pushValidationStatus").empty());
}

TEST_F(Host, anAgentThatEndsGreysThePaneAndItsReturnBringsTheSettingsBack) {
    agent.answersPings = false;
    EXPECT_TRUE(runUntil([this] { return !isPresent(); }));
    for (const char* greyed : {"launchAtLogin", "testSettingsButton", "useScriptsButton"})
        EXPECT_FALSE([host.outlet(greyed) isEnabled]) << greyed;
    EXPECT_TRUE([host.outlet<NSTextField>("launchedDesc") isHidden]);
    agent.heard.clear();
    agent.answersPings = true;
    EXPECT_TRUE(runUntil([this] { return isPresent() && heardOf(message::prefsLoaded); }));
    EXPECT_TRUE([host.outlet("launchAtLogin") isEnabled]);
}

TEST_F(Host, goesOnWhenTheNotificationServerIsKilledUnderLoad) {
    for (int count = 0; count < 200; ++count) {
        agent.send(Message(message::savedPrefs, Dictionary{{"ShutdownDelay", count}}));
        if (count == 100) {
            ASSERT_TRUE(test::killNotificationServer());
        }
    }
    Dictionary last = settingsOfCases();
    last.setObject("LaunchAtLogin", true);
    last.setObject("ShutdownDelay", 777);
    EXPECT_TRUE(agent.sendUntil(Message(message::savedPrefs, last), [this] {
        return text("shutdownDelayText") == "777" && isPresent();
    }));
    agent.heard.clear();
    host.click(host.outlet("launchAtLogin"));
    EXPECT_TRUE(runUntil([this] { return heardOf(message::prefsChanged); }));
}

/// The objects of the pane's classes that live.
std::map<std::string, int> liveObjects() {
    std::map<std::string, int> counts;
    Class* classes = GSDebugAllocationClassList();
    for (Class* each = classes; each && *each; ++each) {
        const std::string name = class_getName(*each);
        if (name.starts_with("ZV") || name.starts_with("KX") || name.starts_with("Zarvil"))
            counts[name] = GSDebugAllocationCount(*each);
    }
    NSZoneFree(NSDefaultMallocZone(), classes);
    return counts;
}

TEST(HostLives, tenLivesLeaveNothingBehind) {
    GSDebugAllocationActive(YES);
    std::map<std::string, int> first;
    constexpr int lives = 11;
    for (int life = 0; life < lives; ++life) {
        {
            const Pool pool;
            PlayedAgent agent;
            const MiniHost host(MiniHost::newPane(bundlePath).get());
            agent.send(Message(message::deviceConnected, Dictionary{{"DeviceName", "UPS"}}));
            ASSERT_TRUE(runUntil(
                [&] { return [[host.outlet<NSView>("connectedDevices") subviews] count] == 1; }));
        }
        // What was put off to the next turn of the run loop lets go of its own.
        (void)runUntil([] { return liveObjects()["Zarvil_Preferences"] == 0; });
        if (life == 0)
            first = liveObjects();
    }
    EXPECT_EQ(liveObjects(), first);
    EXPECT_EQ(first["Zarvil_Preferences"], 0);
    EXPECT_EQ(first["ZVMessageView"], 0) << "the layout's second window";
}

} // namespace

} // namespace zarvil::cocoa
