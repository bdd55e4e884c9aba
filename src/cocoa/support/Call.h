#pragma once

#import <Foundation/Foundation.h>

#include <functional>
#include <memory>

namespace zarvil::cocoa {
struct HeldCall;
}

/// A C++ call as the target of a selector.
@interface ZVCall : NSObject {
    std::unique_ptr<zarvil::cocoa::HeldCall> _held;
}
+ (instancetype)callWithFunction:(const std::function<void()>&)function;
/// Makes the call. It may let go of this object's last owner.
- (void)run;
/// The same as an action, for a control's target.
- (void)run:(id)sender;
@end

namespace zarvil::cocoa {

/// Makes the call soon, from the main thread's run loop in its default mode. Callable on any
/// thread.
void callOnMainThread(const std::function<void()>& call);

} // namespace zarvil::cocoa
