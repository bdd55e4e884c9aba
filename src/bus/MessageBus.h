#pragma once

#include "protocol/NonCopyable.h"
#include "protocol/Subscription.h"

#include <QDBusConnection>
#include <QString>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace zarvil {

enum class BusState : std::uint8_t {
    Connecting,
    Connected,
    /// No bus answers.
    Unavailable,
};

/// A message bus as those see it who share one connection to it. The connection may go and another
/// one come: what was asked of the former must be asked of the next. Virtual throughout, since the
/// host hands its own to the panes, which are libraries of their own. Used on the main thread.
class MessageBus : NonCopyable {
public:
    using Observer = std::function<void(BusState)>;

    virtual ~MessageBus() = default;

    [[nodiscard]] virtual BusState state() const = 0;
    /// None unless connected.
    [[nodiscard]] virtual const std::optional<QDBusConnection>& connection() const = 0;
    /// Why there is none, in the words of the bus library; empty unless the bus is unavailable.
    [[nodiscard]] virtual QString error() const = 0;
    /// Calls the observer at once with the current state, then with every change, in the order of
    /// registration.
    [[nodiscard]] virtual Subscription observe(const Observer& observer) = 0;
    /// Waits for an attempt to connect that is under way; observers hear of its end before this
    /// returns. For callers who must answer at once.
    virtual const std::optional<QDBusConnection>& wait(std::chrono::milliseconds limit) = 0;
};

} // namespace zarvil
