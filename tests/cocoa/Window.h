#pragma once

#import <AppKit/AppKit.h>

#import "cocoa/support/Ref.h"

namespace zarvil::cocoa::test {

/// A window on the display, gone with this object.
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
    Ref<NSWindow> window_ =
        Ref<NSWindow>::adopt([[NSWindow alloc] initWithContentRect:NSMakeRect(50, 50, 300, 200)
                                                         styleMask:NSTitledWindowMask
                                                           backing:NSBackingStoreBuffered
                                                             defer:NO]);
};

} // namespace zarvil::cocoa::test
