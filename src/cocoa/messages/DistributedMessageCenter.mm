#import "cocoa/messages/DistributedMessageCenter.h"

#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"
#import "cocoa/support/PropertyLists.h"
#import "cocoa/support/Ref.h"

namespace {
struct HeldHandler;
}

/// The object that the distributed center calls.
@interface ZVMessageObserver : NSObject {
    std::unique_ptr<HeldHandler> _held;
}
- (instancetype)initWithHandler:(const zarvil::MessageCenter::Handler&)handler;
- (void)receive:(NSNotification*)notification;
@end

namespace {
struct HeldHandler {
    zarvil::MessageCenter::Handler call;
};
} // namespace

@implementation ZVMessageObserver

- (instancetype)initWithHandler:(const zarvil::MessageCenter::Handler&)handler {
    if ((self = [super init]))
        _held = std::make_unique<HeldHandler>(HeldHandler{handler});
    return self;
}

- (void)receive:(NSNotification*)notification {
    zarvil::Message message(zarvil::cocoa::fromCocoa([notification name]));
    if (NSDictionary* info = [notification userInfo])
        message.userInfo = zarvil::cocoa::toDictionary(info);
    // A copy runs: the handler may end the observation, and this object with it.
    const auto handler = _held->call;
    handler(message);
}

@end

namespace zarvil::cocoa {

namespace {

/// Both may raise while the system's center is being started anew.
void logged(NSException* exception) {
    if (exception)
        NSLog(@"Zarvil: the distributed notification center failed: %@", [exception reason]);
}

} // namespace

class DistributedMessageCenter::Observation {
public:
    Observation(std::string_view name, const Handler& handler)
        : name_([toCocoa(name) retain]),
          observer_(
              Ref<ZVMessageObserver>::adopt([[ZVMessageObserver alloc] initWithHandler:handler])) {
        add();
    }
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() {
        remove();
        [name_ release];
    }

    void addAgain() {
        remove();
        add();
    }

private:
    void add() {
        logged(guarded([this] {
            [[NSDistributedNotificationCenter defaultCenter]
                       addObserver:observer_.get()
                          selector:@selector(receive:)
                              name:name_
                            object:nil
                suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
        }));
    }
    void remove() {
        logged(guarded([this] {
            [[NSDistributedNotificationCenter defaultCenter] removeObserver:observer_.get()];
        }));
    }

    NSString* name_;
    Ref<ZVMessageObserver> observer_;
};

DistributedMessageCenter::DistributedMessageCenter() : revival_([this] { addAllAgain(); }) {}

DistributedMessageCenter::~DistributedMessageCenter() = default;

void DistributedMessageCenter::post(Message message) {
    NSDictionary* info = message.userInfo ? toPropertyList(*message.userInfo) : nil;
    NSString* name = toCocoa(message.name);
    logged(guarded([=] {
        [[NSDistributedNotificationCenter defaultCenter] postNotificationName:name
                                                                       object:nil
                                                                     userInfo:info
                                                           deliverImmediately:YES];
    }));
}

Subscription DistributedMessageCenter::addObserver(std::string_view name, Handler handler) {
    auto observation = std::make_shared<Observation>(name, handler);
    std::erase_if(observations_, [](const auto& listed) { return listed.expired(); });
    observations_.push_back(observation);
    return Subscription([=]() mutable { observation.reset(); });
}

void DistributedMessageCenter::addAllAgain() {
    for (const auto& listed : observations_) {
        if (const auto observation = listed.lock())
            observation->addAgain();
    }
}

} // namespace zarvil::cocoa
