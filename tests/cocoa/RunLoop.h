#pragma once

#import <Foundation/Foundation.h>

namespace zarvil::cocoa::test {

/// Turns the run loop until the condition holds; false when it does not within some seconds.
template <typename Condition>
bool spinUntil(Condition condition, double seconds = 10) {
    NSDate* deadline = [NSDate dateWithTimeIntervalSinceNow:seconds];
    while (!condition()) {
        if ([deadline timeIntervalSinceNow] <= 0)
            return false;
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                 beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    }
    return true;
}

} // namespace zarvil::cocoa::test
