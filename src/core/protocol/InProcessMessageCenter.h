#pragma once

#include "protocol/MessageCenter.h"
#include "protocol/ObserverList.h"

#include <deque>
#include <map>

namespace zarvil {

/// A message center within one process, for running pane and agent without a bus. Messages wait
/// until `deliver`, as they would for the next turn of a run loop.
class InProcessMessageCenter final : public MessageCenter {
public:
    void post(Message message) override;
    Subscription addObserver(std::string_view name, Handler handler) override;

    Subscription observeLink(const LinkObserver& observer) override;
    /// Plays the fate of a bus.
    void announce(LinkEvent event) { links_.notify(event); }
    /// Plays a bus with messages that are long to read.
    void setBehind(bool isBehind) { isBehind_ = isBehind; }
    [[nodiscard]] bool isBehind() const override { return isBehind_; }

    /// Delivers what waits and what the handlers post meanwhile, in order. Within a handler it
    /// does nothing: the delivery under way goes on to the new messages by itself.
    void deliver();

private:
    std::map<std::string, ObserverList<const Message&>, std::less<>> observers_;
    ObserverList<LinkEvent> links_;
    std::deque<Message> pending_;
    bool delivering_ = false;
    bool isBehind_ = false;
};

} // namespace zarvil
