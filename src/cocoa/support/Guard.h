#pragma once

#import <Foundation/Foundation.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Runs `body` with `context`; the exception that it raised, or nil. In plain Objective-C: GNU's
/// compiler does not catch Objective-C exceptions in Objective-C++.
NSException* ZVCatch(void (*body)(void*), void* context);

#ifdef __cplusplus
}

namespace zarvil::cocoa {

/// Runs `body`, which must not throw C++ exceptions; the Objective-C exception that it raised, or
/// nil. What the body's C++ objects own is lost when it raises.
template <typename Body>
NSException* guarded(Body body) {
    return ZVCatch([](void* context) { (*static_cast<Body*>(context))(); }, &body);
}

} // namespace zarvil::cocoa
#endif
