#import "cocoa/binding/AlertPanel.h"

#import "cocoa/adapters/CocoaPorts.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#import "RunLoop.h"

#include "platform/AlertQueue.h"

#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

template <typename Class>
Class* partOf(NSWindow* window) {
    NSEnumerator* views = [[[window contentView] subviews] objectEnumerator];
    while (id view = [views nextObject]) {
        if ([view isKindOfClass:[Class class]])
            return view;
    }
    return nil;
}

/// Reads each alert that comes up and presses its button, from within its modal session.
class Reader {
public:
    Reader() { [[NSRunLoop mainRunLoop] addTimer:timer_.get() forMode:NSModalPanelRunLoopMode]; }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() { [timer_.get() invalidate]; }

    std::vector<std::string> read;
    std::vector<NSRect> frames; ///< of the texts
    CGFloat width = 0;          ///< of the last alert

private:
    void look() {
        NSWindow* alert = [NSApp modalWindow];
        if (!alert || alert == last_.get())
            return;
        last_ = Ref<NSWindow>(alert);
        NSTextField* words = partOf<NSTextField>(alert);
        read.push_back(fromCocoa([words stringValue]));
        frames.push_back([words frame]);
        width = [[alert contentView] bounds].size.width;
        [partOf<NSButton>(alert) performClick:nil];
        // The session looks whether it is over after an event.
        [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                            location:NSZeroPoint
                                       modifierFlags:0
                                           timestamp:0
                                        windowNumber:0
                                             context:nil
                                             subtype:0
                                               data1:0
                                               data2:0]
                 atStart:NO];
    }

    Ref<NSWindow> last_;
    Ref<NSTimer> timer_ {
        [NSTimer timerWithTimeInterval:0.02
                                target:[ZVCall callWithFunction:[this] { look(); }]
                              selector:@selector(run:)
                              userInfo:nil
                               repeats:YES]
    };
};

Error error(const std::string& text) { return {"", 0, text}; }

TEST(Alert, showsEachErrorOnceInOrderAfterTheHandlerAndItsWholeText) {
    HandlerQueue handlers;
    const CocoaStringTable strings;
    AlertQueue alerts(handlers, strings);
    Subscription presented = presentAlerts(alerts);
    Reader reader;
    const std::string longText =
        "The script could not be saved: there is no space left on the "
        "device that holds your home folder, nothing of "
        "it was written, and what was there before is still there as it was.";
    handlers.run([&] {
        alerts.presentError(error("short"));
        alerts.presentError(error(longText));
        alerts.presentError(error("short"));
        EXPECT_FALSE(spinUntil([&] { return !reader.read.empty(); }, 0.2)) << "in a handler";
    });
    ASSERT_TRUE(spinUntil([&] { return reader.read.size() == 2 && !alerts.textProperty().get(); }));
    EXPECT_EQ(reader.read, (std::vector<std::string>{"short", longText}));
    EXPECT_GT(reader.frames[1].size.height, reader.frames[0].size.height) << "in several lines";
    EXPECT_LE(NSMaxX(reader.frames[1]), reader.width);

    alerts.presentError(error("while the pane goes"));
    presented.cancel();
    EXPECT_FALSE(spinUntil([&] { return reader.read.size() > 2; }, 0.2));
}

} // namespace

} // namespace zarvil::cocoa
