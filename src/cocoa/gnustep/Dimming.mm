#import "cocoa/binding/Dimming.h"

/// Lies over a view in the background's colour. Clicks go through it.
@interface ZVVeil : NSView {
@public
    NSView* veiled; ///< not retained: both have one superview
    double opacity;
}
@end

@implementation ZVVeil

- (void)drawRect:(NSRect)dirty {
    // A color of the system's own knows no other opacity.
    NSColor* ground =
        [[[self window] backgroundColor] colorUsingColorSpaceName:NSCalibratedRGBColorSpace];
    [[ground colorWithAlphaComponent:1 - opacity] set];
    NSRectFillUsingOperation(dirty, NSCompositeSourceOver);
}

- (NSView*)hitTest:(NSPoint)point {
    (void)point;
    return nil;
}

@end

namespace zarvil::cocoa {

namespace {

ZVVeil* veilOf(NSView* view) {
    NSEnumerator* siblings = [[[view superview] subviews] objectEnumerator];
    while (NSView* sibling = [siblings nextObject]) {
        if ([sibling isKindOfClass:[ZVVeil class]] && static_cast<ZVVeil*>(sibling)->veiled == view)
            return static_cast<ZVVeil*>(sibling);
    }
    return nil;
}

/// What scrolls is veiled from outside, where it stands still.
NSView* standingStill(NSView* view) {
    NSScrollView* scroller = [view enclosingScrollView];
    return scroller && [scroller documentView] == view ? scroller : view;
}

ZVVeil* addVeil(NSView* view) {
    ZVVeil* veil = [[[ZVVeil alloc] initWithFrame:[view frame]] autorelease];
    veil->veiled = view;
    [veil setAutoresizingMask:[view autoresizingMask]];
    [[view superview] addSubview:veil positioned:NSWindowAbove relativeTo:view];
    return veil;
}

} // namespace

void showOpacity(NSView* view, double opacity, Transition /*transition*/) {
    [view setAlphaValue:opacity];
    NSView* standing = standingStill(view);
    ZVVeil* veil = veilOf(standing);
    if (opacity >= 1) {
        [veil removeFromSuperview];
        return;
    }
    if (!veil)
        veil = addVeil(standing);
    veil->opacity = opacity;
    [veil setNeedsDisplay:YES];
}

} // namespace zarvil::cocoa
