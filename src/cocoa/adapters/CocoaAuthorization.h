#pragma once

#import <AppKit/AppKit.h>

#include "interface/AuthorizationView.h"
#include "platform/Authorization.h"
#include "platform/StringTable.h"
#include "platform/Time.h"

#include <memory>

namespace zarvil::cocoa {

/// The lock of a layout as this system has it. It shows its model as long as it lives.
class AuthorizationLock : NonCopyable {
public:
    virtual ~AuthorizationLock() = default;

    virtual void ask(std::string_view right, Interaction interaction) = 0;
    [[nodiscard]] virtual bool isUnlocked() const = 0;
    /// Why it stays locked, in words for the user; empty where that says itself.
    [[nodiscard]] virtual std::string reason() const = 0;
    virtual void close() = 0;
};

/// Null for a view that is no lock. What is given must outlive the result.
[[nodiscard]] std::unique_ptr<AuthorizationLock> makeLock(AuthorizationView& model, NSView* view,
                                                          const StringTable& strings);

/// Asks the system's authority through the lock of the layout, an SFAuthorizationView. Where the
/// system has none of them, a class of that name stands in for it: it shows the model, and the
/// lock stays locked and says why.
class CocoaAuthorization final : public Authorization {
public:
    /// Both must outlive this object.
    CocoaAuthorization(Timers& timers, const StringTable& strings)
        : timers_(timers), strings_(strings) {}

    /// The model and the lock that shows it, until the lock is nil. A view of another class is no
    /// lock: false.
    bool setLock(AuthorizationView& model, NSView* lock);

    void check(std::string_view right, Interaction interaction, Reply reply) override;
    void release(std::string_view right) override;

private:
    Timers& timers_;
    const StringTable& strings_;
    std::unique_ptr<AuthorizationLock> lock_;
    std::unique_ptr<Timer> pendingReply_;
};

} // namespace zarvil::cocoa
