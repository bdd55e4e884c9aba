#import "cocoa/binding/Dimming.h"

namespace zarvil::cocoa {

void showOpacity(NSView* view, double opacity, Transition transition) {
    NSView* shown = transition == Transition::Animated ? [view animator] : view;
    [shown setAlphaValue:opacity];
}

} // namespace zarvil::cocoa
