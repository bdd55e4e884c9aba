#pragma once

#import <AppKit/AppKit.h>

namespace zarvil::cocoa {

/// A text that can be neither edited nor selected, on no ground of its own, in as many lines as its
/// frame has room for; autoreleased.
[[nodiscard]] NSTextField* makeLabel();

} // namespace zarvil::cocoa
