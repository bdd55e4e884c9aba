#import "cocoa/adapters/CocoaAuthorization.h"

#import "cocoa/controls/ZVMadeView.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

/// A button that shows the state of the lock; why it is so stands beside it in the layout.
@interface SFAuthorizationView : ZVMadeView {
    NSButton* _button;
}
- (NSButton*)button;
@end

namespace {
constexpr CGFloat buttonWidth = 120; // points
} // namespace

@implementation SFAuthorizationView

- (void)setup {
    const NSSize size = [self bounds].size;
    _button =
        [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, buttonWidth, size.height)] autorelease];
    [_button setBezelStyle:NSRoundedBezelStyle];
    [_button setAutoresizingMask:NSViewHeightSizable];
    [self addSubview:_button];
}

- (NSButton*)button {
    return _button;
}

@end

namespace zarvil::cocoa {

namespace {

class ShownLock final : public AuthorizationLock {
public:
    ShownLock(AuthorizationView& model, SFAuthorizationView* lock, const StringTable& strings)
        : strings_(strings),
          view_(lock),
          click_([ZVCall callWithFunction:[&model] { model.performClick(); }]) {
        [[lock button] setTarget:click_.get()];
        [[lock button] setAction:@selector(run:)];
        state_ = model.stateProperty().observe([this](int state, Transition) {
            const bool unlocked = state == authorizationState::unlocked;
            [[view_.get() button]
                setTitle:toCocoa(strings_.localizedString(unlocked ? "Unlocked" : "Locked"))];
        });
    }
    ~ShownLock() override { [[view_.get() button] setTarget:nil]; }

    void ask(std::string_view /*right*/, Interaction /*interaction*/) override {}
    [[nodiscard]] bool isUnlocked() const override { return false; }
    [[nodiscard]] std::string reason() const override {
        return strings_.localizedString("This system has no authority that could unlock it.");
    }
    void close() override {}

private:
    const StringTable& strings_;
    Ref<SFAuthorizationView> view_;
    Ref<ZVCall> click_;
    Subscription state_;
};

} // namespace

std::unique_ptr<AuthorizationLock> makeLock(AuthorizationView& model, NSView* view,
                                            const StringTable& strings) {
    if (![view isKindOfClass:[SFAuthorizationView class]])
        return nullptr;
    return std::make_unique<ShownLock>(model, static_cast<SFAuthorizationView*>(view), strings);
}

} // namespace zarvil::cocoa
