#import "cocoa/adapters/CocoaAuthorization.h"

#import "cocoa/support/Ref.h"

#import <SecurityInterface/SFAuthorizationView.h>

/// Tells the model what the user did with the lock.
@interface ZVAuthorizationDelegate : NSObject {
@public
    zarvil::AuthorizationView* model;
}
@end

@implementation ZVAuthorizationDelegate

- (void)authorizationViewDidAuthorize:(SFAuthorizationView*)view {
    (void)view;
    model->show(zarvil::authorizationState::unlocked, {});
}

- (void)authorizationViewDidDeauthorize:(SFAuthorizationView*)view {
    (void)view;
    model->show(zarvil::authorizationState::locked, {});
}

@end

namespace zarvil::cocoa {

struct CocoaAuthorization::Lock {
    Lock(AuthorizationView& shown, SFAuthorizationView* lock)
        : model(shown),
          view(lock),
          delegate(Ref<ZVAuthorizationDelegate>::adopt([[ZVAuthorizationDelegate alloc] init])) {
        delegate.get()->model = &model;
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() { [view.get() setDelegate:nil]; }

    AuthorizationView& model;
    Ref<SFAuthorizationView> view;
    Ref<ZVAuthorizationDelegate> delegate;
};

CocoaAuthorization::CocoaAuthorization(Timers& timers, const StringTable& strings)
    : timers_(timers), strings_(strings) {}

CocoaAuthorization::~CocoaAuthorization() = default;

bool CocoaAuthorization::setLock(AuthorizationView& model, NSView* lock) {
    lock_ = nullptr;
    if (![lock isKindOfClass:[SFAuthorizationView class]])
        return lock == nil;
    lock_ = std::make_unique<Lock>(model, static_cast<SFAuthorizationView*>(lock));
    return true;
}

void CocoaAuthorization::check(std::string_view right, Interaction interaction, Reply reply) {
    if (lock_) {
        std::string name(right);
        AuthorizationItem item = {name.c_str(), 0, nullptr, 0};
        AuthorizationRights rights = {1, &item};
        SFAuthorizationView* view = lock_->view.get();
        [view setAuthorizationRights:&rights];
        [view setDelegate:lock_->delegate.get()];
        if (interaction == Interaction::MayAskUser)
            [view authorize:nil];
        [view updateStatus:nil];
    }
    pendingReply_ = timers_.schedule(0, Repetition::Once, [this, reply] {
        const bool unlocked =
            lock_ && [lock_->view.get() authorizationState] == SFAuthorizationViewUnlockedState;
        reply({unlocked, {}});
    });
}

void CocoaAuthorization::release(std::string_view /*right*/) {
    if (lock_)
        [lock_->view.get() deauthorize:nil];
}

} // namespace zarvil::cocoa
