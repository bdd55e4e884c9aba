#import "cocoa/controls/PointerArea.h"

#import "cocoa/support/Ref.h"

#include "interface/TrackingArea.h"

namespace zarvil::cocoa {

/// A tracking rectangle stands in a window, in the window's coordinates.
struct PointerArea::Tracked {
    NSView* view;
    NSRect rect;
    Ref<NSObject> delegate;
    NSTrackingRectTag tag = 0;
    bool added = false;

    void add() {
        if (![view window])
            return;
        tag = [view addTrackingRect:rect owner:view userData:delegate.get() assumeInside:NO];
        added = true;
    }
    void remove() {
        if (std::exchange(added, false))
            [view removeTrackingRect:tag];
    }
};

PointerArea::PointerArea(NSView* view, NSRect rect, unsigned /*options*/, id delegate)
    : tracked_(std::make_unique<Tracked>(Tracked{view, rect, Ref<NSObject>(delegate)})) {
    tracked_->add();
}

PointerArea::~PointerArea() = default;

void PointerArea::viewDidMove() {
    tracked_->remove();
    tracked_->add();
}

void PointerArea::remove() { tracked_->remove(); }

bool PointerArea::isActive(NSView* view, unsigned options) {
    return !(options & trackingOption::activeInKeyWindow) || [[view window] isKeyWindow];
}

id PointerArea::delegateOf(NSEvent* event) {
    return static_cast<id>(static_cast<void*>([event userData]));
}

} // namespace zarvil::cocoa
