#import "cocoa/binding/Fitting.h"

#include <algorithm>
#include <cmath>

namespace zarvil::cocoa {

namespace {

constexpr CGFloat smallestSize = 9;
constexpr CGFloat hostsMargin = 24; // by which a host may be narrower than the layout
constexpr CGFloat labelInset = 4;
constexpr CGFloat bezelInset = 20;
constexpr CGFloat boxInset = 22; // of a check box before its title

CGFloat roomIn(NSControl* control) {
    CGFloat room = [control frame].size.width;
    if ([control autoresizingMask] & NSViewWidthSizable)
        room -= hostsMargin;
    if (![control isKindOfClass:[NSButton class]])
        return room - labelInset;
    NSButton* button = static_cast<NSButton*>(control);
    if (![button isBordered])
        return room - ([[button cell] imagePosition] == NSImageLeft ? boxInset : 0);
    return room - bezelInset;
}

} // namespace

void fitText(NSControl* control, NSString* text, NSFont* designed) {
    if (!designed || [text length] == 0)
        return;
    const auto widthIn = [=](NSFont* font) {
        return [text sizeWithAttributes:[NSDictionary dictionaryWithObject:font
                                                                    forKey:NSFontAttributeName]]
            .width;
    };
    const CGFloat room = roomIn(control);
    const bool hasLines = [control frame].size.height >= 2 * [designed pointSize];
    const bool isLabel = ![control isKindOfClass:[NSButton class]];
    NSFont* font = designed;
    CGFloat size = [designed pointSize];
    while (!(isLabel && hasLines) && size > smallestSize && widthIn(font) > room) {
        size = std::max(smallestSize, size - 0.5);
        font = [NSFont fontWithName:[designed fontName] size:size];
    }
    if (font && ![font isEqual:[control font]])
        [control setFont:font];
}

} // namespace zarvil::cocoa
