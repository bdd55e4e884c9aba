#pragma once

#import <AppKit/AppKit.h>

#include "interface/AuthorizationView.h"
#include "platform/Authorization.h"
#include "platform/StringTable.h"
#include "platform/Time.h"

#include <memory>

namespace zarvil::cocoa {

/// Asks the system's authority through the lock of the layout, an SFAuthorizationView. Where the
/// system has none of them, a class of that name stands in for it: it shows the model, and the
/// lock stays locked and says why.
class CocoaAuthorization final : public Authorization {
public:
    /// Both must outlive this object.
    CocoaAuthorization(Timers& timers, const StringTable& strings);
    ~CocoaAuthorization() override;

    /// The model and the lock that shows it, until the lock is nil. A view of another class is no
    /// lock: false.
    bool setLock(AuthorizationView& model, NSView* lock);

    void check(std::string_view right, Interaction interaction, Reply reply) override;
    void release(std::string_view right) override;

private:
    struct Lock;

    Timers& timers_;
    [[maybe_unused]] const StringTable& strings_; ///< macOS's lock has its own texts
    std::unique_ptr<Lock> lock_;
    std::unique_ptr<Timer> pendingReply_;
};

} // namespace zarvil::cocoa
