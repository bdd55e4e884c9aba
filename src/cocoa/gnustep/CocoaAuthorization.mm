#import "cocoa/adapters/CocoaAuthorization.h"

#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

/// A button that shows the state of the lock; why it is so stands beside it in the layout.
@interface SFAuthorizationView : NSView {
    NSButton* _button;
}
- (NSButton*)button;
@end

namespace {
constexpr CGFloat buttonWidth = 90; // points
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

- (instancetype)initWithFrame:(NSRect)frame {
    if ((self = [super initWithFrame:frame]))
        [self setup];
    return self;
}

- (instancetype)initWithCoder:(NSCoder*)coder {
    if ((self = [super initWithCoder:coder]))
        [self setup];
    return self;
}

- (NSButton*)button {
    return _button;
}

@end

namespace zarvil::cocoa {

struct CocoaAuthorization::Lock {
    Lock(AuthorizationView& shown, SFAuthorizationView* lock, const StringTable& table)
        : model(shown),
          strings(table),
          view(lock),
          click([ZVCall callWithFunction:[this] { model.performClick(); }]) {
        [[lock button] setTarget:click.get()];
        [[lock button] setAction:@selector(run:)];
        const auto show = [this] {
            const bool unlocked = model.authorizationState() == authorizationState::unlocked;
            [[view.get() button]
                setTitle:toCocoa(strings.localizedString(unlocked ? "Unlocked" : "Locked"))];
        };
        state = model.stateProperty().observe([show](int, Transition) { show(); });
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() { [[view.get() button] setTarget:nil]; }

    AuthorizationView& model;
    const StringTable& strings;
    Ref<SFAuthorizationView> view;
    Ref<ZVCall> click;
    Subscription state;
};

CocoaAuthorization::CocoaAuthorization(Timers& timers, const StringTable& strings)
    : timers_(timers), strings_(strings) {}

CocoaAuthorization::~CocoaAuthorization() = default;

bool CocoaAuthorization::setLock(AuthorizationView& model, NSView* lock) {
    lock_ = nullptr;
    if (![lock isKindOfClass:[SFAuthorizationView class]])
        return lock == nil;
    lock_ = std::make_unique<Lock>(model, static_cast<SFAuthorizationView*>(lock), strings_);
    return true;
}

void CocoaAuthorization::check(std::string_view /*right*/, Interaction /*interaction*/,
                               Reply reply) {
    const std::string why =
        strings_.localizedString("This system has no authority that could unlock it.");
    pendingReply_ = timers_.schedule(0, Repetition::Once, [=] { reply({false, why}); });
}

void CocoaAuthorization::release(std::string_view /*right*/) {}

} // namespace zarvil::cocoa
