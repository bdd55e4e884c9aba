#import "cocoa/canvas/Offscreen.h"

namespace zarvil::cocoa {

NSBitmapImageRep* drawnOnWhite(int width, int height, const std::function<void()>& drawing) {
    NSBitmapImageRep* pixels =
        [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                 pixelsWide:width
                                                 pixelsHigh:height
                                              bitsPerSample:8
                                            samplesPerPixel:4
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSDeviceRGBColorSpace
                                                bytesPerRow:0
                                               bitsPerPixel:32] autorelease];
    [NSGraphicsContext saveGraphicsState];
    [NSGraphicsContext
        setCurrentContext:[NSGraphicsContext graphicsContextWithBitmapImageRep:pixels]];
    [[NSColor whiteColor] set];
    NSRectFill(NSMakeRect(0, 0, width, height));
    drawing();
    [NSGraphicsContext restoreGraphicsState];
    return pixels;
}

double pixelsPerPoint(NSView* view) {
    NSWindow* window = [view window];
    return window ? [window backingScaleFactor] : 1;
}

} // namespace zarvil::cocoa
