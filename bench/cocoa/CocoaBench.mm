#import "MiniHost.h"

#import "cocoa/support/Convert.h"
#import "cocoa/support/Pool.h"

#include "protocol/Messages.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

/// A pane that holds nothing: what a host pays for any.
@interface ZVEmptyPane : NSPreferencePane
@end

@implementation ZVEmptyPane
- (NSView*)loadMainView {
    [self setMainView:[[[NSView alloc] initWithFrame:NSMakeRect(0, 0, 595, 500)] autorelease]];
    [self mainViewDidLoad];
    return [self mainView];
}
@end

/// A box with nothing behind it but the system's notifications: shows what one of them says, and
/// says in another what it shows when it is clicked.
@interface ZVBareBox : NSButton {
@public
    int heard;
}
- (void)listenFor:(NSString*)name selector:(SEL)selector;
- (void)show:(NSNotification*)notification;
- (void)hear:(NSNotification*)notification;
- (void)say:(id)sender;
@end

static NSString* const ZVBareIn = @"ZVBareIn";
static NSString* const ZVBareOut = @"ZVBareOut";

static void ZVPost(NSString* name, NSDictionary* info) {
    [[NSDistributedNotificationCenter defaultCenter] postNotificationName:name
                                                                   object:nil
                                                                 userInfo:info
                                                       deliverImmediately:YES];
}

@implementation ZVBareBox

- (void)listenFor:(NSString*)name selector:(SEL)selector {
    [[NSDistributedNotificationCenter defaultCenter]
               addObserver:self
                  selector:selector
                      name:name
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

- (void)show:(NSNotification*)notification {
    [self setState:[[[notification userInfo] objectForKey:@"LaunchAtLogin"] boolValue]];
}

- (void)hear:(NSNotification*)notification {
    (void)notification;
    ++heard;
}

- (void)say:(id)sender {
    (void)sender;
    ZVPost(ZVBareOut,
           [NSDictionary
               dictionaryWithObjectsAndKeys:@"LaunchAtLogin", @"pref",
                                            [NSNumber numberWithBool:[self state] == NSOnState],
                                            @"prefObj", nil]);
}

@end

/// The Cocoa pane's figures, in a host in this process and over a notification server of its own.
namespace zarvil::cocoa {

namespace {

using test::MiniHost;
using test::PlayedAgent;
using test::runUntil;
using Clock = std::chrono::steady_clock;

NSString* const bundlePath = @ZARVIL_PANE_BUNDLE;

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

template <typename Work>
double milliseconds(Work work) {
    const auto start = Clock::now();
    work();
    return millisecondsSince(start);
}

double percentile(std::vector<double> values, double part) {
    std::ranges::sort(values);
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void require(bool holds, const char* what) {
    if (holds)
        return;
    std::printf("FAILED: %s\n", what);
    std::fflush(stdout);
    std::_Exit(EXIT_FAILURE);
}

double loadOnce(NSPreferencePane* (*make)()) {
    const Pool pool;
    return milliseconds([=] {
        const auto pane = Ref<NSPreferencePane>::adopt(make());
        const MiniHost host(pane.get());
    });
}

void loading() {
    std::vector<double> empty;
    std::vector<double> full;
    constexpr int rounds = 15;
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(loadOnce([]() -> NSPreferencePane* {
            return [[ZVEmptyPane alloc] initWithBundle:[NSBundle bundleWithPath:bundlePath]];
        }));
        full.push_back(loadOnce(
            []() -> NSPreferencePane* { return [MiniHost::newPane(bundlePath).get() retain]; }));
    }
    std::printf("load, show and unselect   first %.1f ms, then median %.1f ms; an empty pane "
                "%.1f ms; difference of medians %.1f ms\n",
                full[0], percentile(full, 0.5), percentile(empty, 0.5),
                percentile(full, 0.5) - percentile(empty, 0.5));
}

/// The pane in a window, with an agent that is up.
struct Bench {
    Bench() {
        require(host.window(), "the main view loads");
        require(agent.sendUntil(Message(message::pingAnswer),
                                [this] { return [host.outlet("togglePowerButton") isEnabled]; }),
                "the pane sees the agent");
    }

    /// Both ways by turns, since a machine is not equally fast all the time.
    template <typename Raw, typename Own>
    static void compare(const char* what, Raw raw, Own own) {
        std::vector<double> rawTimes;
        std::vector<double> ownTimes;
        constexpr int rounds = 500;
        for (int round = 0; round < rounds; ++round) {
            const Pool pool;
            rawTimes.push_back(milliseconds([=] { raw(round); }));
            ownTimes.push_back(milliseconds([=] { own(round); }));
        }
        const double median = percentile(rawTimes, 0.5);
        std::printf("%-25s raw median %.2f ms, p99 %.2f ms; pane median %.2f ms, p99 %.2f ms; "
                    "own layer %+.1f %% (%d)\n",
                    what, median, percentile(rawTimes, 0.99), percentile(ownTimes, 0.5),
                    percentile(ownTimes, 0.99), 100 * (percentile(ownTimes, 0.5) / median - 1),
                    rounds);
    }

    /// Turns the run loop from one arrival to the next.
    template <typename Condition>
    static void spinUntil(Condition condition) {
        while (!condition())
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:1]];
    }

    static void press(NSButton* box) {
        [box setNextState];
        [box sendAction:[box action] to:[box target]];
    }

    void latency() {
        NSButton* box = host.outlet("launchAtLogin");
        const auto raw = Ref<ZVBareBox>::adopt([[ZVBareBox alloc] initWithFrame:[box frame]]);
        const auto ear = Ref<ZVBareBox>::adopt([[ZVBareBox alloc] initWithFrame:[box frame]]);
        ZVBareBox* bare = raw.get();
        ZVBareBox* hears = ear.get();
        [bare setButtonType:NSSwitchButton];
        [bare setTarget:bare];
        [bare setAction:@selector(say:)];
        [[host.window() contentView] addSubview:bare];
        [bare listenFor:ZVBareIn selector:@selector(show:)];
        const auto show = [](NSButton* shown, NSString* name, int round) {
            const bool on = round % 2 == 0;
            NSNumber* value = [NSNumber numberWithBool:on];
            ZVPost(name, [NSDictionary dictionaryWithObject:value forKey:@"LaunchAtLogin"]);
            spinUntil([=] { return [shown state] == (on ? NSOnState : NSOffState); });
        };
        NSString* saved = toCocoa(message::savedPrefs);
        compare(
            "notification to box", [=](int round) { show(bare, ZVBareIn, round); },
            [=](int round) { show(box, saved, round); });

        [hears listenFor:ZVBareOut selector:@selector(hear:)];
        [hears listenFor:toCocoa(message::prefsChanged) selector:@selector(hear:)];
        const auto say = [=](NSButton* pressed) {
            const int before = hears->heard;
            press(pressed);
            spinUntil([=] { return hears->heard > before; });
        };
        compare(
            "click to notification", [=](int) { say(bare); }, [=](int) { say(box); });
        for (ZVBareBox* listener : {bare, hears})
            [[NSDistributedNotificationCenter defaultCenter] removeObserver:listener];
        [bare removeFromSuperview];
    }

    /// Each of them adds a row below those that came before, so that none can be missing.
    void paced() {
        constexpr int count = 10000;
        constexpr int slice = 50;
        constexpr int microsecondsEach = 250;
        const auto start = Clock::now();
        for (int number = 0; number < count; ++number) {
            agent.send(Message(message::deviceConnected, device(number)));
            if (number % slice != slice - 1)
                continue;
            const auto due = start + std::chrono::microseconds(microsecondsEach * (number + 1));
            (void)runUntil([=] { return Clock::now() >= due; });
        }
        require(runUntil([this] { return rows() == count; }), "all paced notifications show");
        const double shown = millisecondsSince(start);
        for (int number = 0; number < count; ++number)
            require(nameInRow(number) == name(number), "paced notifications are in order");
        std::printf("10,000 paced notifications  whole and in order after %.0f ms (the pace is "
                    "%d ms)\n",
                    shown, count * microsecondsEach / 1000);
    }

    /// Scrolls there and reads it.
    std::string nameInRow(int row) const {
        const CGFloat height = [[[list() subviews] objectAtIndex:0] frame].size.height;
        const CGFloat top = height * row;
        [list() scrollPoint:NSMakePoint(0, top)];
        for (NSUInteger index = 0; index < [[list() subviews] count]; ++index) {
            NSView* card = [[list() subviews] objectAtIndex:index];
            if (std::abs([card frame].origin.y - top) < 1)
                return firstText(card);
        }
        return {};
    }

    static std::string firstText(NSView* view) {
        if ([view isKindOfClass:[NSTextField class]])
            return fromCocoa([(NSTextField*)view stringValue]);
        std::string text;
        for (NSUInteger index = 0; index < [[view subviews] count] && text.empty(); ++index)
            text = firstText([[view subviews] objectAtIndex:index]);
        return text;
    }

    static std::string name(int number) { return "Device " + std::to_string(number); }

    static Dictionary device(int number) {
        return {{"DeviceName", name(number)},
                {"DeviceVendor", "Vendor"},
                {"DeviceSerial", std::to_string(number)}};
    }

    NSView* list() const { return host.outlet<NSView>("connectedDevices"); }

    /// Views are there for the rows in sight alone, the list's height for all of them.
    int rows() const {
        NSArray* shown = [list() subviews];
        const CGFloat row = [shown count] == 0 ? 0 : [[shown objectAtIndex:0] frame].size.height;
        return row > 0 ? static_cast<int>([list() frame].size.height / row) : 0;
    }

    void listed(int count) {
        Array devices;
        for (int number = 0; number < count; ++number)
            devices.emplace_back(device(number));
        host.show(list());
        const Message connected(message::allConnectedDevices, Dictionary{{"devices", devices}});
        const auto start = Clock::now();
        agent.send(connected);
        require(runUntil([&] { return rows() == count; }, 300), "all are listed");
        [host.window() display];
        std::printf("%6d devices            %.0f ms from the message to the drawn list\n", count,
                    millisecondsSince(start));
    }

    static NSButton* tickIn(NSView* view) {
        if ([view isKindOfClass:[NSButton class]] && [(NSButton*)view action] &&
            [NSStringFromSelector([(NSButton*)view action]) isEqualToString:@"toggleSelectDevice:"])
            return (NSButton*)view;
        for (NSUInteger index = 0; index < [[view subviews] count]; ++index) {
            if (NSButton* found = tickIn([[view subviews] objectAtIndex:index]))
                return found;
        }
        return nil;
    }

    void tick() {
        NSButton* box = tickIn(list());
        if (!box) {
            std::printf("tick among them           no box of a device was found\n");
            return;
        }
        agent.heard.clear();
        const auto start = Clock::now();
        host.click(box);
        const double clicked = millisecondsSince(start);
        [host.window() displayIfNeeded];
        const double drawn = millisecondsSince(start);
        require(runUntil([this] { return !agent.heard.empty(); }), "the tick is sent");
        std::printf("tick among them           %.1f ms, drawn after %.1f ms\n", clicked, drawn);
    }

    void redraw() {
        NSButton* button = host.outlet("togglePowerButton");
        constexpr int rounds = 200;
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round)
            times.push_back(milliseconds([=] { [button display]; }));
        std::printf("switch redraw             median %.3f ms, p99 %.3f ms\n",
                    percentile(times, 0.5), percentile(times, 0.99));
    }

    PlayedAgent agent;
    Ref<NSPreferencePane> pane = MiniHost::newPane(bundlePath);
    MiniHost host{pane.get()};
};

} // namespace

} // namespace zarvil::cocoa

/// To be run under `tools/with-private-session tools/with-gnustep`. Given "load" it measures that
/// alone.
int main(int argc, char** argv) {
    const zarvil::cocoa::Pool pool;
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    [NSApplication sharedApplication];
    zarvil::cocoa::loading();
    if (argc > 1 && std::string_view(argv[1]) == "load")
        std::_Exit(EXIT_SUCCESS);
    {
        zarvil::cocoa::Bench bench;
        bench.redraw();
        bench.latency();
    }
    {
        zarvil::cocoa::Bench bench;
        bench.paced();
    }
    for (const int count : {1000, 10000}) {
        zarvil::cocoa::Bench bench;
        bench.listed(count);
        bench.tick();
    }
    std::_Exit(EXIT_SUCCESS);
}
