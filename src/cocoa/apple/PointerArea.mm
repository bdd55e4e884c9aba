#import "cocoa/controls/PointerArea.h"

#import "cocoa/support/Ref.h"

namespace zarvil::cocoa {

namespace {
NSString* const delegateKey = @"delegate";
}

struct PointerArea::Tracked {
    NSView* view;
    Ref<NSTrackingArea> area;
};

PointerArea::PointerArea(NSView* view, NSRect rect, unsigned options, id delegate)
    : tracked_(std::make_unique<Tracked>(Tracked {
          view, Ref<NSTrackingArea>::adopt([[NSTrackingArea alloc]
                    initWithRect:rect
                         options:options
                           owner:view
                        userInfo:delegate ? @{delegateKey : delegate} : nil])
      })) {
    [view addTrackingArea:tracked_->area.get()];
}

PointerArea::~PointerArea() = default;

void PointerArea::viewDidMove() {}

void PointerArea::remove() { [tracked_->view removeTrackingArea:tracked_->area.get()]; }

bool PointerArea::isActive(NSView* /*view*/, unsigned /*options*/) { return true; }

id PointerArea::delegateOf(NSEvent* event) {
    return [[[event trackingArea] userInfo] objectForKey:delegateKey];
}

} // namespace zarvil::cocoa
