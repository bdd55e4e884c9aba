#import "cocoa/controls/ZVMessageViewButton.h"

#import "cocoa/canvas/Drawing.h"
#import "cocoa/support/Convert.h"

#include "controls/ZVMessageViewButton.h"

@implementation ZVMessageViewButton

// The interior is all there is.
- (void)drawBezelWithFrame:(NSRect)frame inView:(NSView*)view {
    (void)frame;
    (void)view;
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)view {
    using namespace zarvil::cocoa;
    zarvil::ZVMessageViewButton cell;
    cell.setTitle(fromCocoa([self title]));
    cell.setHighlighted([self isHighlighted]);
    drawWithCanvas(view, frame, [&](zarvil::Canvas& canvas) {
        cell.drawInteriorWithFrame(fromCocoa(frame), nullptr, canvas);
    });
}

@end
