#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace zarvil::cocoa {
class PointerArea;
}

/// A button that behaves like a link of a web page: the pointer over it is a hand. One made in
/// code follows no pointer, on purpose; only one made from a layout does.
@interface ZVURLButton : NSButton {
    std::unique_ptr<zarvil::cocoa::PointerArea> _area;
}
- (void)setupTracking;
@end
