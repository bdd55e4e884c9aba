#pragma once

#include "bus/SenderGate.h"
#include "protocol/MessageCenter.h"
#include "protocol/ObserverList.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <thread>

namespace zarvil {

enum class ConnectionState : std::uint8_t {
    Connecting,
    Connected,
    /// No bus answers; another attempt follows by itself.
    Unavailable,
};

struct DBusOptions {
    /// Where the bus listens; empty for the session bus.
    QString address;
    /// Messages are taken from the owner of this well-known name alone; empty for anyone.
    QString acceptFrom;
    /// The wait after the first failed attempt, doubled by each further one up to a minute.
    std::chrono::milliseconds firstRetry{1000};
};

/// Messages as broadcast signals on a D-Bus message bus. Connects on a thread of its own: nothing
/// here blocks but `flush` and the destructor. What is posted while an attempt to connect is under
/// way is sent once it succeeds; what is posted without a bus is lost, like a message that nobody
/// receives. Keeps no timer running while it is connected.
class DBusMessageCenter final : public QObject, public MessageCenter {
    Q_OBJECT

public:
    explicit DBusMessageCenter(DBusOptions options = {});
    /// Sends what was posted, waiting at most a second, then leaves the bus.
    ~DBusMessageCenter() override;

    void post(Message message) override;
    Subscription addObserver(std::string_view name, Handler handler) override;

    /// Waits, at most a second, until what was posted has reached the bus. For use before the
    /// process is ended: messages leave through another thread, which ends with the process.
    void flush();

    [[nodiscard]] ConnectionState connectionState() const { return state_; }
    /// Why the bus is unavailable, in the words of the bus library; empty while it is not.
    [[nodiscard]] QString connectionError() const { return error_; }
    /// Calls the observer at once with the current state, then with every change.
    Subscription observeConnectionState(const ObserverList<ConnectionState>::Observer& observer);
    /// The connection that carries the messages, to share with others; none unless connected.
    [[nodiscard]] const std::optional<QDBusConnection>& connection() const { return connection_; }

private Q_SLOTS:
    void receive(const QDBusMessage& signal);
    void ownerChanged(const QDBusMessage& signal);
    void connectionLost();

private:
    struct Observed {
        ObserverList<const Message&> observers;
        std::size_t count = 0;
    };

    void connectInBackground();
    void finishConnecting(const QDBusConnection& connection);
    void hookUp();
    void becomeUnavailable(const QString& error);
    void leaveBus();
    void setState(ConnectionState state);

    void send(const Message& message);
    void deliver(const QDBusMessage& signal);
    void watch(const std::string& name);
    void unwatch(const std::string& name);
    void forget(const std::string& name);
    void trackOwner();

    DBusOptions options_;
    ConnectionState state_ = ConnectionState::Connecting;
    QString error_;
    ObserverList<ConnectionState> stateObservers_;
    std::optional<QDBusConnection> connection_;
    QString connectionName_;
    std::thread connector_;
    std::chrono::milliseconds nextRetry_;
    std::deque<Message> waiting_;
    bool unflushed_ = false;
    // Entries stay when their last observer goes: it may go while the list is being notified.
    std::map<std::string, Observed, std::less<>> observed_;
    SenderGate gate_;
    // Destroyed first, so that a subscription that goes with an observer finds nobody to tell.
    std::shared_ptr<char> lifetime_ = std::make_shared<char>();
};

} // namespace zarvil
