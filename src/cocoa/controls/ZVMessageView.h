#pragma once

#import "cocoa/controls/ZVMadeView.h"

#include <memory>
#include <vector>

namespace zarvil::cocoa {
class PointerArea;
}

/// A bevelled dark panel with an etched groove below its top edge. Its picture is made once and
/// used again until the view's size changes.
@interface ZVMessageView : ZVMadeView {
    std::vector<std::unique_ptr<zarvil::cocoa::PointerArea>> _areas;
    NSShadow* shadow;
    NSImage* _background;
}
/// A new picture of the bounds' size.
- (NSImage*)generateBackground;
/// Nil makes the view draw its groove alone.
@property(retain) NSImage* background;
/// While the pointer is over the view, the delegate's `pauseTimer` has been called, afterwards its
/// `resumeTimer`, each if it has it. Every call adds an area without removing the earlier one, on
/// purpose: both delegates go on hearing.
- (void)setupTracking:(id)delegate;
@end
