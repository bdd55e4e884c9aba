#import "cocoa/canvas/Drawing.h"

#import "cocoa/canvas/CocoaTextMask.h"
#import "cocoa/canvas/Offscreen.h"
#import "cocoa/support/Pool.h"

#include "raster/RasterCanvas.h"
#include "raster/RasterImage.h"

#include <algorithm>
#include <cmath>

namespace zarvil::cocoa {

namespace {

/// Kept from one drawing to the next; all drawing is on the main thread.
struct Shared {
    CocoaTextMask text;
    RasterMemory memory;
    Bitmap bitmap;
    RasterImageRenderer images;
};

Shared& shared() {
    static Shared kept;
    return kept;
}

/// The pixels as an image of a size in points, autoreleased.
NSImage* imageOf(const Bitmap& bitmap, NSSize size) {
    NSBitmapImageRep* pixels =
        [[[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                                 pixelsWide:bitmap.width()
                                                 pixelsHigh:bitmap.height()
                                              bitsPerSample:8
                                            samplesPerPixel:4
                                                   hasAlpha:YES
                                                   isPlanar:NO
                                             colorSpaceName:NSDeviceRGBColorSpace
                                                bytesPerRow:0
                                               bitsPerPixel:32] autorelease];
    bitmap.copyTo([pixels bitmapData], static_cast<std::size_t>([pixels bytesPerRow]),
                  PixelLayout::RgbaBytes);
    [pixels setSize:size];
    NSImage* image = [[[NSImage alloc] initWithSize:size] autorelease];
    [image addRepresentation:pixels];
    return image;
}

int pixels(double extent, double scale) {
    return std::max(1, static_cast<int>(std::ceil(extent * scale)));
}

} // namespace

void drawWithCanvas(NSView* view, NSRect rect, const std::function<void(Canvas&)>& drawing) {
    const Pool pool;
    const double scale = pixelsPerPoint(view);
    const bool flipped = [view isFlipped];
    const double width = NSMaxX(rect);
    const double height = NSMaxY(rect);
    // The bitmap begins at the coordinates' origin, which is where what is drawn counts from.
    Bitmap& bitmap = shared().bitmap;
    bitmap.reset(pixels(width, scale), pixels(height, scale));
    {
        RasterCanvas canvas(
            bitmap, shared().memory, shared().text,
            {{width, height}, flipped ? Orientation::YDown : Orientation::YUp, scale, {0, 0}});
        drawing(canvas);
    }
    const NSSize size = NSMakeSize(bitmap.width() / scale, bitmap.height() / scale);
    [imageOf(bitmap, size)
            drawInRect:NSMakeRect(0, flipped ? 0 : height - size.height, size.width, size.height)
              fromRect:NSZeroRect
             operation:NSCompositeSourceOver
              fraction:1
        respectFlipped:YES
                 hints:nil];
}

NSImage* toCocoa(const Image& image) {
    const auto* made = dynamic_cast<const RasterImage*>(&image);
    if (!made)
        return nil;
    const NSSize size = NSMakeSize(image.size().width, image.size().height);
    return imageOf(made->pixels(1, shared().text), size);
}

ImageRenderer& imageRenderer() { return shared().images; }

} // namespace zarvil::cocoa
