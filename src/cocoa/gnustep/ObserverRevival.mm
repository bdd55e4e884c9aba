#import "cocoa/messages/ObserverRevival.h"

#import "cocoa/support/Ref.h"

namespace {

struct HeldCall;

/// Until then the notification server that died is let go of, so that a new one is started.
constexpr NSTimeInterval settling = 0.1; // seconds

} // namespace

@interface ZVConnectionWatch : NSObject {
    std::unique_ptr<HeldCall> _held;
}
- (instancetype)initWithCall:(const std::function<void()>&)addAgain;
- (void)stop;
- (void)connectionDied:(NSNotification*)notification;
- (void)addAgain;
@end

namespace {
struct HeldCall {
    std::function<void()> call;
};
} // namespace

@implementation ZVConnectionWatch

- (instancetype)initWithCall:(const std::function<void()>&)addAgain {
    if ((self = [super init])) {
        _held = std::make_unique<HeldCall>(HeldCall{addAgain});
        [[NSNotificationCenter defaultCenter] addObserver:self
                                                 selector:@selector(connectionDied:)
                                                     name:NSConnectionDidDieNotification
                                                   object:nil];
    }
    return self;
}

- (void)stop {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
}

// Any connection may be meant, also one that is none of the notification server's: adding the
// observers again is harmless then.
- (void)connectionDied:(NSNotification*)notification {
    (void)notification;
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [self performSelector:@selector(addAgain) withObject:nil afterDelay:settling];
}

- (void)addAgain {
    _held->call();
}

@end

namespace zarvil::cocoa {

struct ObserverRevival::Watch {
    explicit Watch(const std::function<void()>& addAgain)
        : object(Ref<ZVConnectionWatch>::adopt([[ZVConnectionWatch alloc] initWithCall:addAgain])) {
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() { [object.get() stop]; }

    Ref<ZVConnectionWatch> object;
};

ObserverRevival::ObserverRevival(std::function<void()> addAgain)
    : watch_(std::make_unique<Watch>(addAgain)) {}

ObserverRevival::~ObserverRevival() = default;

} // namespace zarvil::cocoa
