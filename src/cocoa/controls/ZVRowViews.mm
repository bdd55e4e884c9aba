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
