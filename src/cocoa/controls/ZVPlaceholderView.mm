#import "cocoa/controls/ZVPlaceholderView.h"

#import "cocoa/controls/Label.h"
#import "cocoa/controls/ZVSymbolView.h"
#import "cocoa/support/Convert.h"

using zarvil::cocoa::toCocoa;

namespace {

constexpr CGFloat symbolSide = 40;
constexpr CGFloat gap = 8;
constexpr CGFloat titleHeight = 20;
constexpr CGFloat wordsHeight = 64;

NSTextField* centredLabel(NSFont* font) {
    NSTextField* label = zarvil::cocoa::makeLabel();
    [label setAlignment:NSCenterTextAlignment];
    [label setFont:font];
    return label;
}

} // namespace

@implementation ZVPlaceholderView

- (void)layOut {
    const NSSize size = [self bounds].size;
    CGFloat top = (size.height - symbolSide - titleHeight - wordsHeight - 2 * gap) / 2;
    [_symbol setFrame:NSMakeRect((size.width - symbolSide) / 2, top, symbolSide, symbolSide)];
    top += symbolSide + gap;
    [_title setFrame:NSMakeRect(0, top, size.width, titleHeight)];
    top += titleHeight + gap;
    [_words setFrame:NSMakeRect(0, top, size.width, wordsHeight)];
}

- (void)setup {
    _symbol = [[[ZVSymbolView alloc] initWithFrame:NSZeroRect] autorelease];
    _title = centredLabel([NSFont boldSystemFontOfSize:[NSFont systemFontSize]]);
    _words = centredLabel([NSFont systemFontOfSize:[NSFont systemFontSize]]);
    [self addSubview:_symbol];
    [self addSubview:_title];
    [self addSubview:_words];
    [self layOut];
}

- (BOOL)isFlipped {
    return YES;
}

- (void)resizeSubviewsWithOldSize:(NSSize)size {
    (void)size;
    [self layOut];
}

// The list below still scrolls.
- (NSView*)hitTest:(NSPoint)point {
    (void)point;
    return nil;
}

- (void)showText:(const zarvil::Placeholder::Text&)text {
    [_symbol showSymbol:text.symbol];
    [_title setStringValue:toCocoa(text.title)];
    [_words setStringValue:toCocoa(text.words)];
}

@end
