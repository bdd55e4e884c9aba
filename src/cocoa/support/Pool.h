#pragma once

#import <Foundation/Foundation.h>

namespace zarvil::cocoa {

/// Lets go, at the end of its scope, what was autoreleased in it.
class Pool {
public:
    Pool() = default;
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;
    ~Pool() { [pool_ drain]; }

private:
    NSAutoreleasePool* pool_ = [[NSAutoreleasePool alloc] init];
};

} // namespace zarvil::cocoa
