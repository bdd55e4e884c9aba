#import "MiniHost.h"

#import "NotificationServers.h"

#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Pool.h"

#include "ControlCases.h"

#import <GNUstepBase/GSObjCRuntime.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

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
    bool isOn(std::string_view outlet) const { return [host.outlet(outlet) state] == NSOnState; }
    std::string text(std::string_view outlet) const {
        return [[host.outlet<NSTextField>(outlet) stringValue] UTF8String];
    }

    /// The state in which each case of the table begins.
    void reset() {
        for (const Message& message : messagesBeforeACase())
            agent.send(message);
        const Message echo(message::setState, Dictionary{{"state", true}});
        ASSERT_TRUE(runUntil([&] {
            return !agent.heard.empty() && described(agent.heard.back()) == described(echo);
        }));
        agent.heard.clear();
        // Rows are laid out by calls that were put off before this one.
        auto laidOut = std::make_shared<bool>(false);
        callOnMainThread([=] { *laidOut = true; });
        ASSERT_TRUE(runUntil([&] { return *laidOut; }));
    }

    /// What the pane sends for an act of the user with a control; it comes before what another
    /// control sends.
    std::string sentBy(const std::function<void()>& act, std::string_view control = {}) {
        const bool isLog = control == "viewLogButton";
        act();
        host.click(host.outlet(isLog ? "checkForUpdatesNow" : "viewLogButton"));
        EXPECT_TRUE(runUntil(
            [=, this] { return heardOf(isLog ? message::checkForUpdates : message::viewLog); }));
        agent.heard.pop_back();
        return described(std::exchange(agent.heard, {}));
    }

    const Pool pool;
    PlayedAgent agent;
    Ref<NSPreferencePane> pane = MiniHost::newPane(bundlePath);
    MiniHost host{pane.get()};
};

/// The view of a class below another whose action is the given one, if one is given.
template <typename Class>
Class* viewIn(NSView* view, SEL action = nullptr) {
    if ([view isKindOfClass:[Class class]] && (!action || [(id)view action] == action))
        return static_cast<Class*>(view);
    NSEnumerator* subviews = [[view subviews] objectEnumerator];
    while (NSView* subview = [subviews nextObject]) {
        if (Class* found = viewIn<Class>(subview, action))
            return found;
    }
    return nil;
}

/// With a script that runs until there is a file.
struct HostWithScript : Host {
    HostWithScript() {
        std::filesystem::create_directories(home / "Library/Zarvil Scripts");
        std::ofstream(home / "Library/Zarvil Scripts/Wait.zvscript")
            << "#!/bin/sh\nuntil [ -e '" << end.string() << "' ]; do sleep 0.02; done\n";
    }

    /// The small window of what runs; nil while there is none.
    NSView* progress() const {
        NSEnumerator* windows = [[NSApp windows] objectEnumerator];
        while (NSWindow* window = [windows nextObject]) {
            if (window != host.window() && [window isVisible] &&
                viewIn<NSProgressIndicator>([window contentView]))
                return [window contentView];
        }
        return nil;
    }

    void run() const {
        NSView* list = host.outlet<NSView>("scriptsCollection");
        ASSERT_TRUE(runUntil([=] { return viewIn<NSButton>(list, @selector(execute:)); }));
        host.click(viewIn<NSButton>(list, @selector(execute:)));
        ASSERT_TRUE(runUntil([this] { return progress(); }));
    }

    std::filesystem::path home = std::getenv("HOME");
    std::filesystem::path end = home / "end";
};

TEST_F(HostWithScript, aScriptThatRunsKeepsInputFromThePaneAndCanBeStopped) {
    run();
    EXPECT_NE(fromCocoa([viewIn<NSTextField>(progress()) stringValue]).find("Wait"),
              std::string::npos);
    host.click(host.outlet("launchAtLogin"));
    std::ofstream(end) << "";
    EXPECT_TRUE(runUntil([this] { return !progress(); }));
    EXPECT_EQ(sentBy([] {}), "") << "neither then nor now";
    EXPECT_FALSE(isOn("launchAtLogin"));

    std::filesystem::remove(end);
    run();
    host.click(viewIn<NSButton>(progress()));
    EXPECT_TRUE(runUntil([this] { return !progress(); })) << "Stop was pressed";
    EXPECT_NE(sentBy([this] { host.click(host.outlet("launchAtLogin")); }), "");
}

/// What a click on a control is to hit.
NSView* boxOf(NSView* control) {
    return [control isKindOfClass:[NSCollectionView class]] ? viewIn<NSButton>(control) : control;
}

TEST_F(Host, everyControlSendsWhatTheTableSays) {
    for (const ControlCase& c : controlCases) {
        reset();
        NSView* control = host.outlet<NSView>(c.outlet);
        ASSERT_TRUE(runUntil([=] { return boxOf(control); })) << c.outlet;
        EXPECT_EQ(sentBy(
                      [&] {
                          if (c.typed.empty())
                              host.click(boxOf(control));
                          else
                              host.type(static_cast<NSTextField*>(control), c.typed);
                      },
                      c.outlet),
                  c.sent)
            << c.outlet;
    }
}

TEST_F(Host, everySettingOfTheAgentShows) {
    for (const SettingCase& c : settingCases()) {
        reset();
        Dictionary settings = settingsOfCases();
        settings.setObject(c.key, c.value);
        agent.send(Message(message::savedPrefs, settings));
        EXPECT_TRUE(runUntil(
            [&] {
                return c.shown == SettingCase::disabled ? ![host.outlet(c.outlet) isEnabled]
                       : c.shown.empty()                ? isOn(c.outlet)
                                                        : text(c.outlet) == c.shown;
            },
            5))
            << c.key;
    }
}

TEST_F(Host, everyMessageAboutDevicesShows) {
    const auto device = [](const char* name) {
        return Dictionary{
            {"DeviceName", name}, {"DeviceVendor", "V"}, {"DeviceSerial", "1"}, {"Further", 1}};
    };
    const auto all = [&](const std::vector<const char*>& names) {
        Array devices;
        for (const char* name : names)
            devices.emplace_back(device(name));
        return Dictionary{{"devices", devices}};
    };
    const std::string_view connected = "connectedDevices";
    const std::string_view saved = "selectedDevices";
    const auto shows = [&](const Message& sent, NSUInteger isConnected, NSUInteger isSaved) {
        agent.send(sent);
        const auto rows = [this](std::string_view list) {
            return [[host.outlet<NSView>(list) subviews] count];
        };
        return runUntil([&] { return rows(connected) == isConnected && rows(saved) == isSaved; },
                        5);
    };
    for (const Message& before : messagesBeforeACase())
        if (before.name == message::allConnectedDevices)
            agent.send(Message(message::deviceDisconnected,
                               *before.info().arrayForKey("devices")->front().as<Dictionary>()));
    EXPECT_TRUE(shows(Message(message::allSavedDevices, all({})), 0, 0));
    EXPECT_TRUE(shows(Message(message::deviceConnected, device("A")), 1, 0));
    EXPECT_TRUE(shows(Message(message::newSavedDevice, Dictionary{{"device", device("A")}}), 0, 1));
    EXPECT_TRUE(shows(Message(message::allSavedDevices, all({"A", "B"})), 0, 2));
    EXPECT_TRUE(shows(Message(message::allConnectedDevices, all({"C", "D", "E"})), 3, 2));
    EXPECT_TRUE(shows(Message(message::deviceDisconnected, device("D")), 2, 2));
    // It is no list that is shown, and what comes after it still is.
    agent.send(Message(message::allDevices, all({"F"})));
    EXPECT_TRUE(shows(Message(message::deviceConnected, device("G")), 3, 2));
}

TEST_F(Host, everyAnswerOfTheAgentShows) {
    agent.send(Message(message::stateChanged, Dictionary{{"state", false}}));
    EXPECT_TRUE(runUntil([&] { return !isOn("togglePowerButton"); }));
    reset();

    host.click(host.outlet("testSettingsButton"));
    EXPECT_FALSE([host.outlet("testSettingsButton") isEnabled]);
    agent.send(Message(message::testFinished));
    EXPECT_TRUE(runUntil([&] { return [host.outlet("testSettingsButton") isEnabled]; }));

    std::vector<std::string> verdicts;
    for (const int code : {0, 1, 2, 3}) {
        agent.heard.clear();
        host.click(host.outlet("pushValidate"));
        EXPECT_TRUE(runUntil([this] { return heardOf(message::validatePushover); }));
        EXPECT_FALSE([host.outlet("pushValidate") isEnabled]);
        agent.send(Message(message::pushValidationFinished, Dictionary{{"code", code}}));
        EXPECT_TRUE(runUntil([&] { return [host.outlet("pushValidate") isEnabled]; }));
        EXPECT_FALSE([host.outlet<NSTextField>("pushValidationStatus") isHidden]);
        EXPECT_EQ(std::ranges::count(verdicts, text("pushValidationStatus")), 0) << code;
        verdicts.push_back(text("pushValidationStatus"));
    }
}

TEST_F(Host, theLockSaysWhyItStaysLocked) {
    host.click(viewIn<NSButton>(host.outlet<NSView>("authView")));
    EXPECT_TRUE(runUntil([this] {
        return text("lockLine").find("no authority") != std::string::npos;
    })) << text("lockLine");
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

/// To be run in Ukrainian, which has three forms.
TEST_F(Host, DISABLED_speaksTheUsersLanguageWithItsForms) {
    const NSTabView* tabs = host.outlet<NSTabView>("tabView");
    EXPECT_EQ(fromCocoa([[tabs tabViewItemAtIndex:0] label]), "Пристрої");
    Array devices;
    for (const auto& [count, words] : std::initializer_list<std::pair<std::size_t, const char*>>{
             {1, "1 пристрій під наглядом"},
             {2, "2 пристрої під наглядом"},
             {5, "5 пристроїв під наглядом"},
             {21, "21 пристрій під наглядом"}}) {
        while (devices.size() < count)
            devices.emplace_back(Dictionary{{"DeviceName", std::to_string(devices.size())}});
        agent.send(Message(message::allSavedDevices, Dictionary{{"devices", devices}}));
        EXPECT_TRUE(runUntil([&] { return text("statusLine").starts_with(words); }, 5))
            << text("statusLine");
    }
}

/// Of every text; the whole process runs without any.
TEST(HostLayout, DISABLED_withoutFontsThePaneDoesNothingAndNoHarm) {
    const Pool pool;
    PlayedAgent agent;
    const MiniHost host(MiniHost::newPane(bundlePath).get());
    EXPECT_FALSE(host.outlet("togglePowerButton"));
    agent.send(Message(message::savedPrefs, settingsOfCases()));
    agent.send(Message(message::pingAnswer));
    EXPECT_FALSE(runUntil([&] { return !agent.heard.empty(); }, 1));
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
