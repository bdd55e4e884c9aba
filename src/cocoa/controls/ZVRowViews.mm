#import "cocoa/controls/ZVRowViews.h"

@implementation ZVBannerView

- (void)setProminent:(BOOL)prominent {
    _prominent = prominent;
    [self setNeedsDisplay:YES];
}

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
    if (!_prominent)
        return;
    constexpr CGFloat radius = 6;
    NSBezierPath* ground =
        [NSBezierPath bezierPathWithRoundedRect:NSInsetRect([self bounds], 0.5, 0.5)
                                        xRadius:radius
                                        yRadius:radius];
    [[NSColor colorWithCalibratedRed:1 green:0.95 blue:0.76 alpha:1] set];
    [ground fill];
    [[NSColor colorWithCalibratedRed:0.72 green:0.56 blue:0.12 alpha:1] set];
    [ground stroke];
}

@end

@implementation ZVLinkRowView

- (void)arrange {
    if (_arranging)
        return;
    _arranging = YES;
    constexpr CGFloat gap = 16;
    constexpr CGFloat inset = 3; // beside a link's words
    constexpr CGFloat smallestSize = 9;
    NSArray* links = [self subviews];
    const NSUInteger count = [links count];
    const auto lengthOfWords = [=] {
        CGFloat length = 0;
        for (NSUInteger index = 0; index < count; ++index)
            length += [[[links objectAtIndex:index] attributedTitle] size].width;
        return length;
    };
    const CGFloat rest = static_cast<CGFloat>(count) * (2 * inset + gap) - gap;
    const NSSize room = [self bounds].size;
    for (CGFloat size = [[[links lastObject] font] pointSize];
         size > smallestSize && lengthOfWords() + rest > room.width; size -= 0.5)
        for (NSUInteger index = 0; index < count; ++index)
            [[links objectAtIndex:index] setFont:[NSFont systemFontOfSize:size - 0.5]];
    const bool isRight = [self autoresizingMask] & NSViewMinXMargin;
    CGFloat x = isRight ? room.width - lengthOfWords() - rest : 0;
    for (NSUInteger index = 0; index < count; ++index) {
        NSButton* link = [links objectAtIndex:index];
        const CGFloat width = [[link attributedTitle] size].width + 2 * inset;
        [link setFrame:NSMakeRect(x, 0, width, room.height)];
        x += width + gap;
    }
    [self setNeedsDisplay:YES];
    _arranging = NO;
}

@end

@implementation ZVStateButton

- (BOOL)acceptsFirstResponder {
    return NO;
}

- (void)mouseDown:(NSEvent*)event {
    (void)event;
}

- (void)performClick:(id)sender {
    (void)sender;
}

@end

@implementation ZVHeadingField

- (void)awakeFromNib {
    [self setFont:[NSFont boldSystemFontOfSize:[[self font] pointSize]]];
}

@end
