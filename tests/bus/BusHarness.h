#pragma once

#include "EventWait.h"
#include "PrivateBus.h"
#include "bus/DBusMessageCenter.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <memory>
#include <vector>

namespace zarvil {

/// A private bus with a pane's message center on it.
class BusHarness : public testing::Test {
protected:
    [[nodiscard]] DBusOptions paneOptions() const {
        DBusOptions options;
        options.address = bus.address();
        options.acceptFrom = bus::agentName;
        options.firstRetry = std::chrono::milliseconds(5);
        return options;
    }
    [[nodiscard]] DBusOptions agentOptions() const {
        DBusOptions options = paneOptions();
        options.acceptFrom.clear();
        return options;
    }

    [[nodiscard]] static bool waitUntilConnected(const DBusMessageCenter& center) {
        return waitFor([&] { return center.connectionState() == ConnectionState::Connected; }) &&
               isHeardByTheBus(center);
    }
    /// Once the bus has answered, it has read all that the center asked it to watch for. What
    /// another connection sends from then on arrives.
    [[nodiscard]] static bool isHeardByTheBus(const DBusMessageCenter& center) {
        return center.connection()
                   ->call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/",
                                                         "org.freedesktop.DBus", "GetId"))
                   .type() == QDBusMessage::ReplyMessage;
    }

    /// A connection of somebody else's. Stands until the test's end.
    enum class Owns : bool { Nothing, AgentName };
    [[nodiscard]] QDBusConnection peer(Owns owns = Owns::Nothing) {
        peers_.push_back(QStringLiteral("peer-%1").arg(peers_.size()));
        QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), peers_.back());
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
    /// The same, for one receiver alone.
    static QDBusMessage signalTo(const DBusMessageCenter& receiver, std::string_view name,
                                 const QVariantList& arguments = {}) {
        QDBusMessage message =
            QDBusMessage::createTargetedSignal(receiver.connection()->baseService(), bus::path,
                                               bus::interface, QString::fromUtf8(name));
        message.setArguments(arguments);
        return message;
    }

    ~BusHarness() override {
        for (const QString& name : peers_)
            QDBusConnection::disconnectFromBus(name);
    }

    PrivateBus bus;

private:
    std::vector<QString> peers_;
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
