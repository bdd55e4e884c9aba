#import "MiniHost.h"

#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"
#import "cocoa/support/Pool.h"
#import "cocoa/support/PropertyLists.h"

#include "protocol/Messages.h"

#include <cstdlib>
#include <string>
#include <sys/stat.h>

namespace zarvil::cocoa::test {
void hear(PlayedAgent& agent, NSNotification* notification);
}

/// Listens again by itself when the notification server has died.
@interface ZVTestObserver : NSObject {
@public
    zarvil::cocoa::test::PlayedAgent* agent;
}
- (void)listen;
@end

@implementation ZVTestObserver

- (void)listen {
    NSDistributedNotificationCenter* center = [NSDistributedNotificationCenter defaultCenter];
    [center removeObserver:self];
    for (const std::string_view name : zarvil::message::paneToAgent)
        [center addObserver:self
                      selector:@selector(receive:)
                          name:zarvil::cocoa::toCocoa(name)
                        object:nil
            suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

- (void)connectionDied:(NSNotification*)notification {
    (void)notification;
    [self performSelector:@selector(listen) withObject:nil afterDelay:0.1];
}

- (void)receive:(NSNotification*)notification {
    if (agent)
        zarvil::cocoa::test::hear(*agent, notification);
}

@end

namespace zarvil::cocoa::test {

namespace {

/// A message is no event, and what it changed is seen at the end of the turn.
constexpr NSTimeInterval turn = 0.001; // seconds

void handOn(NSEvent* event) {
    if (event)
        [NSApp sendEvent:event];
}

NSEvent* nextEvent(NSDate* until) {
    return [NSApp nextEventMatchingMask:NSAnyEventMask
                              untilDate:until
                                 inMode:NSDefaultRunLoopMode
                                dequeue:YES];
}

void post(NSEvent* event) { [NSApp postEvent:event atStart:NO]; }

NSEvent* mouse(NSEventType type, NSPoint place, NSWindow* window) {
    return [NSEvent mouseEventWithType:type
                              location:place
                         modifierFlags:0
                             timestamp:0
                          windowNumber:[window windowNumber]
                               context:[window graphicsContext]
                           eventNumber:0
                            clickCount:1
                              pressure:type == NSLeftMouseDown ? 1 : 0];
}

} // namespace

bool runUntil(const std::function<bool()>& condition, double seconds) {
    NSDate* deadline = [[NSDate alloc] initWithTimeIntervalSinceNow:seconds];
    while (!condition() && [deadline timeIntervalSinceNow] > 0) {
        const Pool pool;
        handOn(nextEvent([NSDate dateWithTimeIntervalSinceNow:turn]));
    }
    [deadline release];
    return condition();
}

Ref<NSPreferencePane> MiniHost::newPane(NSString* bundlePath) {
    NSBundle* bundle = [NSBundle bundleWithPath:bundlePath];
    return Ref<NSPreferencePane>::adopt([[[bundle principalClass] alloc] initWithBundle:bundle]);
}

MiniHost::MiniHost(NSPreferencePane* pane) : pane_(pane) {
    // Every home folder of the system has one.
    ::mkdir((std::string(std::getenv("HOME")) + "/Library").c_str(), S_IRWXU);
    NSView* view = [pane loadMainView];
    [pane willSelect];
    if (view) {
        window_ = Ref<NSWindow>::adopt([[NSWindow alloc] initWithContentRect:[view frame]
                                                                   styleMask:NSTitledWindowMask
                                                                     backing:NSBackingStoreBuffered
                                                                       defer:NO]);
        [window_.get() setReleasedWhenClosed:NO];
        [[window_.get() contentView] addSubview:view];
        [window_.get() makeKeyAndOrderFront:nil];
        [window_.get() display];
    }
    [pane didSelect];
}

MiniHost::~MiniHost() {
    if ([pane_.get() shouldUnselect] != NSUnselectNow)
        NSLog(@"the pane did not want to be unselected");
    [pane_.get() willUnselect];
    [[pane_.get() mainView] removeFromSuperview];
    [window_.get() close];
    [pane_.get() didUnselect];
}

id MiniHost::wired(std::string_view name) const {
    id found = nil;
    id* result = &found;
    NSString* key = toCocoa(name);
    NSObject* owner = pane_.get();
    (void)guarded([=] { *result = [owner valueForKey:key]; });
    return found;
}

void MiniHost::show(NSView* view) const {
    NSTabView* tabs = outlet<NSTabView>("tabView");
    for (NSUInteger index = 0; index < [[tabs tabViewItems] count]; ++index) {
        if ([view isDescendantOf:[[tabs tabViewItemAtIndex:static_cast<NSInteger>(index)] view]])
            [tabs selectTabViewItemAtIndex:static_cast<NSInteger>(index)];
    }
    [view scrollRectToVisible:[view bounds]];
    [window_.get() display];
}

void MiniHost::click(NSView* view) const {
    show(view);
    NSWindow* window = [view window];
    const NSRect bounds = [view bounds];
    const NSPoint place = [view convertPoint:NSMakePoint(NSMidX(bounds), NSMidY(bounds))
                                      toView:nil];
    post(mouse(NSLeftMouseDown, place, window));
    post(mouse(NSLeftMouseUp, place, window));
    while (NSEvent* event = nextEvent([NSDate distantPast]))
        handOn(event);
}

void MiniHost::type(NSTextField* field, std::string_view text) const {
    show(field);
    [window_.get() makeFirstResponder:field];
    [field selectText:nil];
    [[field currentEditor] insertText:toCocoa(text)];
    post([NSEvent keyEventWithType:NSKeyDown
                           location:NSZeroPoint
                      modifierFlags:0
                          timestamp:0
                       windowNumber:[window_.get() windowNumber]
                            context:[window_.get() graphicsContext]
                         characters:@"\r"
        charactersIgnoringModifiers:@"\r"
                          isARepeat:NO
                            keyCode:36]);
    while (NSEvent* event = nextEvent([NSDate distantPast]))
        handOn(event);
}

PlayedAgent::PlayedAgent() : observer_(Ref<ZVTestObserver>::adopt([[ZVTestObserver alloc] init])) {
    observer_.get()->agent = this;
    [observer_.get() listen];
    [[NSNotificationCenter defaultCenter] addObserver:observer_.get()
                                             selector:@selector(connectionDied:)
                                                 name:NSConnectionDidDieNotification
                                               object:nil];
}

PlayedAgent::~PlayedAgent() {
    observer_.get()->agent = nullptr;
    [NSObject cancelPreviousPerformRequestsWithTarget:observer_.get()];
    [[NSNotificationCenter defaultCenter] removeObserver:observer_.get()];
    ZVTestObserver* observer = observer_.get();
    (void)guarded(
        [=] { [[NSDistributedNotificationCenter defaultCenter] removeObserver:observer]; });
}

void PlayedAgent::send(const Message& message) const {
    NSString* name = toCocoa(message.name);
    NSDictionary* info = message.userInfo ? toPropertyList(*message.userInfo) : nil;
    (void)guarded([=] {
        [[NSDistributedNotificationCenter defaultCenter] postNotificationName:name
                                                                       object:nil
                                                                     userInfo:info
                                                           deliverImmediately:YES];
    });
}

bool PlayedAgent::sendUntil(const Message& message, const std::function<bool()>& condition) const {
    return runUntil([&] {
        send(message);
        return runUntil(condition, 0.2);
    });
}

void hear(PlayedAgent& agent, NSNotification* notification) {
    Message message(fromCocoa([notification name]));
    if ([notification userInfo])
        message.userInfo = toDictionary([notification userInfo]);
    if (message.name != message::ping)
        agent.heard.push_back(std::move(message));
    else if (agent.answersPings)
        agent.send(Message(message::pingAnswer));
}

} // namespace zarvil::cocoa::test
