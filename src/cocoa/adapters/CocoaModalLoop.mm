#import "cocoa/adapters/CocoaModalLoop.h"

namespace zarvil::cocoa {

void CocoaModalLoop::setWindow(const Panel& panel, NSWindow* window) {
    windows_.insert_or_assign(&panel, Ref<NSWindow>(window));
}

void CocoaModalLoop::runModalForWindow(Panel& panel) {
    const auto shown = windows_.find(&panel);
    if (shown == windows_.end())
        return;
    ++running_;
    [NSApp runModalForWindow:shown->second.get()];
    --running_;
}

void CocoaModalLoop::stopModal() {
    if (running_ == 0)
        return;
    [NSApp stopModal];
    // A session looks whether it is over after each event, and a call of a timer is none.
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

} // namespace zarvil::cocoa
