#import "cocoa/canvas/Offscreen.h"

namespace zarvil::cocoa {

/// The back end draws on windows alone, so that pixels are read back from one.
NSBitmapImageRep* drawnOnWhite(int width, int height, const std::function<void()>& drawing) {
    const NSRect all = NSMakeRect(0, 0, width, height);
    NSImage* image = [[[NSImage alloc] initWithSize:all.size] autorelease];
    [image lockFocus];
    [[NSColor whiteColor] set];
    NSRectFill(all);
    drawing();
    NSBitmapImageRep* pixels = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:all] autorelease];
    [image unlockFocus];
    return pixels;
}

double pixelsPerPoint(NSView* view) {
    NSWindow* window = [view window];
    return window ? [window userSpaceScaleFactor] : 1;
}

} // namespace zarvil::cocoa
