#pragma once

#include "cocoa/messages/ObserverRevival.h"
#include "protocol/MessageCenter.h"

#include <list>
#include <memory>

namespace zarvil::cocoa {

/// The protocol's messages as distributed notifications: no object, delivered immediately. They
/// carry no sender that could be checked. A message that cannot be posted is lost, as one without
/// a receiver is; the log says so.
class DistributedMessageCenter final : public MessageCenter {
public:
    DistributedMessageCenter();
    ~DistributedMessageCenter() override;

    void post(Message message) override;
    /// A subscription may outlive the center.
    Subscription addObserver(std::string_view name, Handler handler) override;

private:
    class Observation;

    void addAllAgain();

    std::list<std::weak_ptr<Observation>> observations_;
    ObserverRevival revival_;
};

} // namespace zarvil::cocoa
