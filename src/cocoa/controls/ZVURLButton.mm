#import "cocoa/controls/ZVURLButton.h"

#import "cocoa/controls/Hyperlink.h"
#import "cocoa/controls/PointerArea.h"
#import "cocoa/controls/ZVRowViews.h"

#include "interface/TrackingArea.h"

using zarvil::cocoa::PointerArea;

namespace {
constexpr unsigned options =
    zarvil::trackingOption::mouseEnteredAndExited | zarvil::trackingOption::activeInKeyWindow;
}

@implementation ZVURLButton

- (instancetype)initWithCoder:(NSCoder*)coder {
    if ((self = [super initWithCoder:coder]))
        [self setupTracking];
    return self;
}

// A title of the layout's looks like a link too.
- (void)awakeFromNib {
    [self setTitle:[self title]];
}

- (void)setTitle:(NSString*)title {
    [super setTitle:title];
    if ([title length] == 0)
        return;
    NSMutableAttributedString* link =
        [[[NSAttributedString hyperlinkFromString:title withURL:nil] mutableCopy] autorelease];
    if (NSFont* font = [self font])
        [link addAttribute:NSFontAttributeName value:font range:NSMakeRange(0, [link length])];
    [self setAttributedTitle:link];
}

- (void)setAttributedTitle:(NSAttributedString*)title {
    [super setAttributedTitle:title];
    if ([[self superview] isKindOfClass:[ZVLinkRowView class]])
        [static_cast<ZVLinkRowView*>([self superview]) arrange];
}

// The attributed title has a font of its own.
- (void)setFont:(NSFont*)font {
    [super setFont:font];
    [self setTitle:[self title]];
}

- (void)setupTracking {
    _area = std::make_unique<PointerArea>(self, [self bounds], options, nil);
}

- (void)setFrame:(NSRect)frame {
    [super setFrame:frame];
    if (_area) {
        _area->remove();
        [self setupTracking];
    }
}

- (void)viewDidMoveToWindow {
    [super viewDidMoveToWindow];
    if (_area)
        _area->viewDidMove();
}

- (void)mouseEntered:(NSEvent*)event {
    if (PointerArea::isActive(self, options))
        [[NSCursor pointingHandCursor] set];
    [super mouseEntered:event];
}

- (void)mouseExited:(NSEvent*)event {
    if (PointerArea::isActive(self, options))
        [[NSCursor arrowCursor] set];
    [super mouseExited:event];
}

@end
