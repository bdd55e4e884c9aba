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

namespace {

class SystemLock final : public AuthorizationLock {
public:
    SystemLock(AuthorizationView& model, SFAuthorizationView* lock)
        : view_(lock),
          delegate_(Ref<ZVAuthorizationDelegate>::adopt([[ZVAuthorizationDelegate alloc] init])) {
        delegate_.get()->model = &model;
    }
    ~SystemLock() override { [view_.get() setDelegate:nil]; }

    void ask(std::string_view right, Interaction interaction) override {
        std::string name(right);
        AuthorizationItem item = {name.c_str(), 0, nullptr, 0};
        AuthorizationRights rights = {1, &item};
        [view_.get() setAuthorizationRights:&rights];
        [view_.get() setDelegate:delegate_.get()];
        if (interaction == Interaction::MayAskUser)
            [view_.get() authorize:nil];
        [view_.get() updateStatus:nil];
    }
    [[nodiscard]] bool isUnlocked() const override {
        return [view_.get() authorizationState] == SFAuthorizationViewUnlockedState;
    }
    [[nodiscard]] std::string reason() const override { return {}; }
    void close() override { [view_.get() deauthorize:nil]; }

private:
    Ref<SFAuthorizationView> view_;
    Ref<ZVAuthorizationDelegate> delegate_;
};

} // namespace

/// The system's lock has its own texts.
std::unique_ptr<AuthorizationLock> makeLock(AuthorizationView& model, NSView* view,
                                            const StringTable& /*strings*/) {
    if (![view isKindOfClass:[SFAuthorizationView class]])
        return nullptr;
    return std::make_unique<SystemLock>(model, static_cast<SFAuthorizationView*>(view));
}

} // namespace zarvil::cocoa
