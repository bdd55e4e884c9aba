#import "cocoa/controls/ZVMessageView.h"

#import "cocoa/canvas/Drawing.h"
#import "cocoa/controls/PointerArea.h"
#import "cocoa/support/Convert.h"

#include "controls/ZVMessageView.h"

using zarvil::cocoa::fromCocoa;
using zarvil::cocoa::PointerArea;

namespace {

constexpr unsigned options =
    zarvil::trackingOption::mouseEnteredAndExited | zarvil::trackingOption::activeAlways;

/// Sends a message without arguments to a delegate that has it.
void tell(id delegate, SEL message) {
    if ([delegate respondsToSelector:message])
        [delegate performSelector:message];
}

} // namespace

@implementation ZVMessageView

@synthesize background = _background;

- (void)setup {
    [self setBackground:[self generateBackground]];
}

- (void)dealloc {
    if (!_areas.empty())
        _areas.back()->remove();
    [shadow release];
    [_background release];
    [super dealloc];
}

- (NSImage*)generateBackground {
    const zarvil::ZVMessageView panel(zarvil::cocoa::imageRenderer(), fromCocoa([self bounds]));
    return zarvil::cocoa::toCocoa(*panel.background());
}

- (void)setupTracking:(id)delegate {
    // The frame stands where bounds would be expected, on purpose.
    _areas.push_back(std::make_unique<PointerArea>(self, [self frame], options, delegate));
}

- (void)viewDidMoveToWindow {
    [super viewDidMoveToWindow];
    for (const auto& area : _areas)
        area->viewDidMove();
}

- (void)mouseEntered:(NSEvent*)event {
    tell(PointerArea::delegateOf(event), @selector(pauseTimer));
}

- (void)mouseExited:(NSEvent*)event {
    tell(PointerArea::delegateOf(event), @selector(resumeTimer));
}

- (void)drawRect:(NSRect)dirty {
    (void)dirty;
    if (NSImage* kept = [self background]) {
        if (!NSEqualSizes([kept size], [self frame].size))
            [self setBackground:[self generateBackground]];
        [[self background] drawInRect:[self bounds]
                             fromRect:NSZeroRect
                            operation:NSCompositeSourceOver
                             fraction:1];
    }
    zarvil::ZVMessageView groove(zarvil::cocoa::imageRenderer(), fromCocoa([self bounds]));
    groove.setBackground(nullptr);
    zarvil::cocoa::drawWithCanvas(self, [self bounds],
                                  [&groove](zarvil::Canvas& canvas) { groove.drawRect(canvas); });
}

@end
