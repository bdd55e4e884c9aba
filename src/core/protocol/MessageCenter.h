#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Subscription.h"
#include "protocol/Value.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// A named broadcast with an optional payload.
struct Message {
    std::string name;
    std::optional<Dictionary> userInfo;

    explicit Message(std::string_view messageName) : name(messageName) {}
    Message(std::string_view messageName, Dictionary info)
        : name(messageName), userInfo(std::move(info)) {}

    /// The payload, empty when the message carries none.
    [[nodiscard]] const Dictionary& info() const {
        static const Dictionary none;
        return userInfo ? *userInfo : none;
    }

    friend bool operator==(const Message&, const Message&) = default;
};

/// The payload of a handler's message, empty when there is no message either.
[[nodiscard]] inline const Dictionary& infoOf(const Message* message) {
    static const Message none{""};
    return (message ? *message : none).info();
}

/// What becomes of the way to the other side.
enum class LinkEvent : std::uint8_t {
    Up,
    /// Nothing carries messages at present; the center goes on trying by itself.
    Down,
    /// Another process speaks for the other side from now on and knows nothing of what was said.
    NewPeer,
};

/// Posts and observes named messages system-wide. Posting is fire-and-forget: without a receiver
/// a message is lost without error. Handlers run on the main thread, never inside `post`, in the
/// order in which the messages were sent. Used on the main thread only.
class MessageCenter : NonCopyable {
public:
    using Handler = std::function<void(const Message&)>;
    using LinkObserver = std::function<void(LinkEvent)>;

    virtual ~MessageCenter() = default;

    virtual void post(Message message) = 0;
    virtual Subscription addObserver(std::string_view name, Handler handler) = 0;

    /// Calls the observer at once with `Up` or `Down`, then with every event, in order with the
    /// messages. A center that nothing can cut off is always up.
    virtual Subscription observeLink(const LinkObserver& observer) {
        observer(LinkEvent::Up);
        return {};
    }
    /// Whether messages have come that the observers have not been told of yet.
    [[nodiscard]] virtual bool isBehind() const { return false; }
};

} // namespace zarvil
