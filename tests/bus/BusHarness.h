#pragma once

#include "EventWait.h"
#include "PrivateBus.h"
#include "bus/BusConnection.h"
#include "bus/DBusMessageCenter.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <memory>
#include <vector>

namespace zarvil {

/// A message center with a connection of its own, as in a process of its own.
struct Center {
    Center(const PrivateBus& onBus, const char* acceptFrom)
        : bus(onBus.options()), messages(bus, QString(acceptFrom)) {}

    [[nodiscard]] bool waitUntilConnected() const {
        return waitFor([&] { return bus.state() == BusState::Connected; }) && isHeardByTheBus();
    }
    /// Once the bus has answered, it has read all that the center asked it to watch for. What
    /// another connection sends from then on arrives.
    [[nodiscard]] bool isHeardByTheBus() const {
        return bus.connection()->call(busCall("GetId")).type() == QDBusMessage::ReplyMessage;
    }

    BusConnection bus;
    DBusMessageCenter messages;
};
struct PaneCenter : Center {
    explicit PaneCenter(const PrivateBus& onBus) : Center(onBus, bus::agentName) {}
};
struct AgentCenter : Center {
    explicit AgentCenter(const PrivateBus& onBus) : Center(onBus, "") {}
};

/// A private bus with somebody else's connections on it.
class BusHarness : public testing::Test {
protected:
    /// A connection of somebody else's. Stands until the test's end.
    enum class Owns : bool { Nothing, AgentName };
    [[nodiscard]] QDBusConnection peer(Owns owns = Owns::Nothing) {
        QDBusConnection connection = bus.connect(QStringLiteral("peer-%1").arg(++peers_));
        EXPECT_TRUE(connection.isConnected());
        EXPECT_TRUE(owns == Owns::Nothing || connection.registerService(bus::agentName));
        return connection;
    }

    static QDBusMessage signal(std::string_view name, const QVariantList& arguments = {}) {
        QDBusMessage message =
            QDBusMessage::createSignal(bus::path, bus::interface, QString::fromUtf8(name));
        message.setArguments(arguments);
        return message;
    }

    PrivateBus bus;

private:
    int peers_ = 0;
};

/// Keeps every message of the given names.
class Recorder {
public:
    template <typename Names>
    Recorder(MessageCenter& center, const Names& names) {
        for (const std::string_view name : names)
            subscriptions_.push_back(center.addObserver(
                name, [this](const Message& message) { received.push_back(message); }));
    }
    explicit Recorder(MessageCenter& center) : Recorder(center, message::agentToPane) {}

    [[nodiscard]] bool waitForCount(std::size_t count,
                                    std::chrono::seconds limit = waitLimit) const {
        return waitFor([&] { return received.size() >= count; }, limit);
    }

    std::vector<Message> received;

private:
    std::vector<Subscription> subscriptions_;
};

} // namespace zarvil
