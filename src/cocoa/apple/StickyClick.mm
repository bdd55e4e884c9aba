#import "cocoa/adapters/CocoaPorts.h"

#import <Carbon/Carbon.h>

namespace zarvil::cocoa {

std::optional<StickyClick> stickyClick() {
    EventTime timeout = 0;
    HISize bias{};
    if (HIMouseTrackingGetParameters(kMouseParamsSticky, &timeout, &bias) != noErr)
        return std::nullopt;
    return StickyClick{timeout, {bias.width, bias.height}};
}

} // namespace zarvil::cocoa
