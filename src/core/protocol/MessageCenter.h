#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Subscription.h"
#include "protocol/Value.h"

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

/// Posts and observes named messages system-wide. Posting is fire-and-forget: without a receiver
/// a message is lost without error. Handlers run on the main thread, never inside `post`, in the
/// order in which the messages were sent. Used on the main thread only.
class MessageCenter : NonCopyable {
public:
    using Handler = std::function<void(const Message&)>;

    virtual ~MessageCenter() = default;

    virtual void post(Message message) = 0;
    virtual Subscription addObserver(std::string_view name, Handler handler) = 0;
};

} // namespace zarvil
