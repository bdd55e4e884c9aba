#import "cocoa/canvas/CocoaTextMask.h"

#import "cocoa/canvas/Offscreen.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Pool.h"

#include <algorithm>
#include <cmath>

namespace zarvil::cocoa {

namespace {

constexpr std::size_t keptTexts = 16;
constexpr int longestSide = 4096; // pixels; what lies beyond is left out

NSDictionary* attributes(double size, TextAlignment alignment) {
    NSMutableParagraphStyle* paragraph =
        [[[NSParagraphStyle defaultParagraphStyle] mutableCopy] autorelease];
    [paragraph setAlignment:toCocoa(alignment)];
    // In one line, of which a narrow box cuts the end off, not the last letter.
    [paragraph setLineBreakMode:NSLineBreakByClipping];
    return [NSDictionary dictionaryWithObjectsAndKeys:[NSFont systemFontOfSize:size],
                                                      NSFontAttributeName, [NSColor blackColor],
                                                      NSForegroundColorAttributeName, paragraph,
                                                      NSParagraphStyleAttributeName, nil];
}

int pixels(double extent) {
    return static_cast<int>(std::ceil(std::clamp(extent, 0.0, double{longestSide})));
}

/// Black on white as coverage.
std::vector<std::uint8_t> coverageOf(NSBitmapImageRep* picture, int width, int height) {
    std::vector<std::uint8_t> coverage(static_cast<std::size_t>(width) *
                                       static_cast<std::size_t>(height));
    const unsigned char* data = [picture bitmapData];
    if (!data)
        return coverage;
    const auto stride = static_cast<std::size_t>([picture bytesPerRow]);
    const auto samples = static_cast<std::size_t>([picture samplesPerPixel]);
    const auto columns = std::min<std::size_t>(static_cast<std::size_t>(width),
                                               static_cast<std::size_t>([picture pixelsWide]));
    const auto rows = std::min<std::size_t>(static_cast<std::size_t>(height),
                                            static_cast<std::size_t>([picture pixelsHigh]));
    for (std::size_t y = 0; y < rows; ++y) {
        for (std::size_t x = 0; x < columns; ++x)
            coverage[y * static_cast<std::size_t>(width) + x] =
                static_cast<std::uint8_t>(255 - data[y * stride + x * samples]);
    }
    return coverage;
}

} // namespace

Size CocoaTextMask::sizeOfText(std::string_view text, double fontSize) const {
    const Pool pool;
    const NSSize size =
        [toCocoa(text) sizeWithAttributes:attributes(fontSize, TextAlignment::Left)];
    return {size.width, size.height};
}

const CocoaTextMask::Drawn& CocoaTextMask::drawn(const Key& key) {
    const auto found = std::ranges::find(recent_, key, &Drawn::key);
    if (found != recent_.end()) {
        recent_.splice(recent_.begin(), recent_, found);
        return recent_.front();
    }
    const Pool pool;
    NSString* text = toCocoa(key.text);
    NSDictionary* style = attributes(key.pixelSize, key.alignment);
    const NSRect box = NSMakeRect(0, 0, key.width, key.height);
    NSBitmapImageRep* picture =
        drawnOnWhite(key.width, key.height, [&] { [text drawInRect:box withAttributes:style]; });
    recent_.push_front({key, coverageOf(picture, key.width, key.height)});
    if (recent_.size() > keptTexts)
        recent_.pop_back();
    return recent_.front();
}

void CocoaTextMask::draw(const MaskedText& text, const MaskBuffer& buffer) {
    const Key key{std::string(text.text), text.fontSize * text.scale, pixels(text.box.width),
                  pixels(text.box.height), text.alignment};
    if (key.width == 0 || key.height == 0 || !(key.pixelSize > 0))
        return;
    const Drawn& box = drawn(key);
    const int left = static_cast<int>(std::lround(text.box.x));
    const int top = static_cast<int>(std::lround(text.box.y));
    const int first = std::max(0, -left);
    const int last = std::min(key.width, buffer.width - left);
    for (int y = std::max(0, -top); y < key.height && y + top < buffer.height; ++y) {
        const std::uint8_t* from = box.coverage.data() + std::ptrdiff_t{y} * key.width;
        std::uint8_t* to = buffer.bytes + static_cast<std::size_t>(y + top) * buffer.bytesPerRow;
        if (first < last)
            std::copy(from + first, from + last, to + first + left);
    }
}

} // namespace zarvil::cocoa
