#import "cocoa/support/Call.h"

#import "cocoa/support/Pool.h"

namespace zarvil::cocoa {

struct HeldCall {
    std::function<void()> function;
};

} // namespace zarvil::cocoa

@implementation ZVCall

+ (instancetype)callWithFunction:(const std::function<void()>&)function {
    ZVCall* made = [[[self alloc] init] autorelease];
    if (made)
        made->_held = std::make_unique<zarvil::cocoa::HeldCall>(zarvil::cocoa::HeldCall{function});
    return made;
}

- (void)run {
    const auto function = _held->function;
    function();
}

- (void)run:(id)sender {
    (void)sender;
    [self run];
}

@end

namespace zarvil::cocoa {

void callOnMainThread(const std::function<void()>& call) {
    const Pool pool;
    // Not while a message is handed over, within the handler that sends it.
    NSArray* modes = [NSArray arrayWithObject:NSDefaultRunLoopMode];
    [[ZVCall callWithFunction:call] performSelectorOnMainThread:@selector(run)
                                                     withObject:nil
                                                  waitUntilDone:NO
                                                          modes:modes];
}

} // namespace zarvil::cocoa
