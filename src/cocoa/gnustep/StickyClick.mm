#import "cocoa/adapters/CocoaPorts.h"

namespace zarvil::cocoa {

std::optional<StickyClick> stickyClick() { return std::nullopt; }

} // namespace zarvil::cocoa
