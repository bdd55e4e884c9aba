#import "cocoa/adapters/CocoaAuthorization.h"

namespace zarvil::cocoa {

bool CocoaAuthorization::setLock(AuthorizationView& model, NSView* lock) {
    lock_ = nullptr;
    lock_ = makeLock(model, lock, strings_);
    return lock_ || !lock;
}

void CocoaAuthorization::check(std::string_view right, Interaction interaction, Reply reply) {
    if (lock_)
        lock_->ask(right, interaction);
    pendingReply_ = timers_.schedule(0, Repetition::Once, [=, this] {
        if (lock_)
            reply({lock_->isUnlocked(), lock_->reason()});
        else
            reply({false, {}});
    });
}

void CocoaAuthorization::release(std::string_view /*right*/) {
    if (lock_)
        lock_->close();
}

} // namespace zarvil::cocoa
