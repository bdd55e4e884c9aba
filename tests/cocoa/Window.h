#pragma once

#import <AppKit/AppKit.h>

#import "cocoa/support/Ref.h"

#include <vector>

namespace zarvil::cocoa::test {

/// A window on the display, gone with this object, and what a user does in it.
class Window {
public:
    Window() {
        [window_.get() setReleasedWhenClosed:NO];
        [window_.get() makeKeyAndOrderFront:nil];
    }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { [window_.get() close]; }

    NSView* content() const { return [window_.get() contentView]; }

    /// Presses at a point of the view, drags to others, the last of which is where it lets go.
    void press(NSView* view, NSPoint start, const std::vector<NSPoint>& path) const {
        for (const NSPoint point : path)
            [NSApp postEvent:event(NSLeftMouseDragged, view, point) atStart:NO];
        [NSApp postEvent:event(NSLeftMouseUp, view, path.empty() ? start : path.back()) atStart:NO];
        [NSApp sendEvent:event(NSLeftMouseDown, view, start)];
    }

    /// The pixels that a view shows.
    NSBitmapImageRep* picture(NSView* view) const {
        [window_.get() display];
        [view lockFocus];
        NSBitmapImageRep* pixels =
            [[[NSBitmapImageRep alloc] initWithFocusedViewRect:[view bounds]] autorelease];
        [view unlockFocus];
        return pixels;
    }

private:
    NSEvent* event(NSEventType type, NSView* view, NSPoint point) const {
        return [NSEvent mouseEventWithType:type
                                  location:[view convertPoint:point toView:nil]
                             modifierFlags:0
                                 timestamp:0
                              windowNumber:[window_.get() windowNumber]
                                   context:[window_.get() graphicsContext]
                               eventNumber:0
                                clickCount:1
                                  pressure:1];
    }

    Ref<NSWindow> window_ =
        Ref<NSWindow>::adopt([[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 300, 200)
                                                         styleMask:NSTitledWindowMask
                                                           backing:NSBackingStoreBuffered
                                                             defer:NO]);
};

} // namespace zarvil::cocoa::test
