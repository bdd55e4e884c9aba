#include "bus/DBusMessageCenter.h"

#include "bus/DBusValues.h"
#include "protocol/BusNames.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include <algorithm>
#include <atomic>

namespace zarvil {

namespace {

constexpr std::chrono::milliseconds longestRetry{60'000};
constexpr int flushTimeout = 1000; // milliseconds

namespace daemon {

const auto service = QStringLiteral("org.freedesktop.DBus");
const auto path = QStringLiteral("/org/freedesktop/DBus");
const auto localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const auto localInterface = QStringLiteral("org.freedesktop.DBus.Local");

} // namespace daemon

QString unusedConnectionName() {
    static std::atomic<int> count = 0;
    return QStringLiteral("zarvil-messages-%1").arg(++count);
}

} // namespace

DBusMessageCenter::DBusMessageCenter(DBusOptions options)
    : options_(std::move(options)),
      nextRetry_(options_.firstRetry),
      gate_([this](const QDBusMessage& signal) { deliver(signal); }) {
    connectInBackground();
}

DBusMessageCenter::~DBusMessageCenter() {
    if (connector_.joinable())
        connector_.join();
    flush();
    leaveBus();
}

void DBusMessageCenter::post(Message message) {
    if (state_ == ConnectionState::Connected)
        send(message);
    else if (state_ == ConnectionState::Connecting)
        waiting_.push_back(std::move(message));
}

Subscription DBusMessageCenter::addObserver(std::string_view name, Handler handler) {
    const auto entry = observed_.try_emplace(std::string(name)).first;
    if (++entry->second.count == 1)
        watch(entry->first);
    auto registration =
        std::make_shared<Subscription>(entry->second.observers.add(std::move(handler)));
    return Subscription(
        [this, alive = std::weak_ptr<char>(lifetime_), registration, key = entry->first] {
            registration->cancel();
            if (!alive.expired())
                forget(key);
        });
}

void DBusMessageCenter::flush() {
    if (!unflushed_ || !connection_)
        return;
    unflushed_ = false;
    connection_->call(QDBusMessage::createMethodCall(daemon::service, daemon::path,
                                                     QStringLiteral("org.freedesktop.DBus.Peer"),
                                                     QStringLiteral("Ping")),
                      QDBus::Block, flushTimeout);
}

Subscription
DBusMessageCenter::observeConnectionState(const ObserverList<ConnectionState>::Observer& observer) {
    Subscription subscription = stateObservers_.add(observer);
    observer(state_);
    return subscription;
}

// Connecting waits for the bus's greeting, however long that takes; so it has its own thread.
void DBusMessageCenter::connectInBackground() {
    if (connector_.joinable())
        connector_.join();
    setState(ConnectionState::Connecting);
    connectionName_ = unusedConnectionName();
    connector_ = std::thread([this, address = options_.address, name = connectionName_] {
        const QDBusConnection connection =
            address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                              : QDBusConnection::connectToBus(address, name);
        // The destructor waits for this thread and drops the event when it comes too late.
        QMetaObject::invokeMethod(
            this, [this, connection] { finishConnecting(connection); }, Qt::QueuedConnection);
    });
}

void DBusMessageCenter::finishConnecting(const QDBusConnection& connection) {
    connection_ = connection;
    if (connection_->isConnected())
        hookUp();
    // Asked again: a bus that went before its end was being listened for.
    if (!connection_->isConnected()) {
        const QString reason = connection_->lastError().message();
        becomeUnavailable(reason);
        return;
    }
    nextRetry_ = options_.firstRetry;
    error_.clear();
    // A state observer may post: what waits goes first.
    for (const Message& message : std::exchange(waiting_, {}))
        send(message);
    setState(ConnectionState::Connected);
}

void DBusMessageCenter::hookUp() {
    connection_->connect(QString(), daemon::localPath, daemon::localInterface,
                         QStringLiteral("Disconnected"), this, SLOT(connectionLost()));
    gate_.reset();
    for (const auto& [name, observed] : observed_)
        if (observed.count > 0)
            watch(name);
    if (!options_.acceptFrom.isEmpty())
        trackOwner();
}

void DBusMessageCenter::connectionLost() {
    if (connection_)
        becomeUnavailable(tr("The connection to the message bus was lost"));
}

void DBusMessageCenter::becomeUnavailable(const QString& error) {
    leaveBus();
    waiting_.clear();
    error_ = error;
    qCWarning(busLog, "No message bus: %s. Trying again in %lld ms", qUtf8Printable(error),
              static_cast<long long>(nextRetry_.count()));
    QTimer::singleShot(nextRetry_, this, &DBusMessageCenter::connectInBackground);
    nextRetry_ = std::min(nextRetry_ * 2, longestRetry);
    setState(ConnectionState::Unavailable);
}

void DBusMessageCenter::leaveBus() {
    connection_.reset();
    unflushed_ = false;
    QDBusConnection::disconnectFromBus(connectionName_);
}

void DBusMessageCenter::setState(ConnectionState state) {
    if (state == state_)
        return;
    state_ = state;
    stateObservers_.notify(state);
}

void DBusMessageCenter::send(const Message& message) {
    std::optional<QVariantMap> payload = encodePayload(message.info());
    if (!payload) {
        qCWarning(busLog, "Did not send %s", message.name.c_str());
        return;
    }
    QDBusMessage signal =
        QDBusMessage::createSignal(bus::path, bus::interface, QString::fromUtf8(message.name));
    signal << QVariant(*std::move(payload));
    connection_->send(signal);
    unflushed_ = true;
}

void DBusMessageCenter::receive(const QDBusMessage& signal) {
    if (!connection_)
        return;
    if (options_.acceptFrom.isEmpty())
        deliver(signal);
    else
        gate_.receive(signal);
}

void DBusMessageCenter::deliver(const QDBusMessage& signal) {
    const auto found = observed_.find(signal.member().toStdString());
    if (found == observed_.end() || found->second.count == 0)
        return;
    Message message(found->first);
    message.userInfo = decodePayload(signal);
    found->second.observers.notify(message);
}

// One match a message name, so that the bus does not wake this process for its own broadcasts.
void DBusMessageCenter::watch(const std::string& name) {
    if (connection_)
        connection_->connect(QString(), bus::path, bus::interface, QString::fromUtf8(name), this,
                             SLOT(receive(QDBusMessage)));
}

void DBusMessageCenter::unwatch(const std::string& name) {
    if (connection_)
        connection_->disconnect(QString(), bus::path, bus::interface, QString::fromUtf8(name), this,
                                SLOT(receive(QDBusMessage)));
}

void DBusMessageCenter::forget(const std::string& name) {
    if (--observed_.find(name)->second.count == 0)
        unwatch(name);
}

// The library's own filter by well-known name blocks to ask for the owner, and lets through what
// others address to this connection directly; so the owner is followed here.
void DBusMessageCenter::trackOwner() {
    connection_->connect(QString(), daemon::path, daemon::service,
                         QStringLiteral("NameOwnerChanged"), {options_.acceptFrom},
                         QStringLiteral("sss"), this, SLOT(ownerChanged(QDBusMessage)));
    QDBusMessage question = QDBusMessage::createMethodCall(
        daemon::service, daemon::path, daemon::service, QStringLiteral("GetNameOwner"));
    question << options_.acceptFrom;
    auto* watcher = new QDBusPendingCallWatcher(connection_->asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, asked = connectionName_] {
                watcher->deleteLater();
                const QDBusPendingReply<QString> reply = *watcher;
                if (connection_ && connectionName_ == asked)
                    gate_.ownerIs(reply.isError() ? QString() : reply.value());
            });
}

void DBusMessageCenter::ownerChanged(const QDBusMessage& signal) {
    // Anyone can address a signal of this name to us; only the bus itself can have this sender.
    const QVariantList arguments = signal.arguments();
    if (connection_ && signal.service() == daemon::service && arguments.size() == 3)
        gate_.ownerChanged(arguments[1].toString(), arguments[2].toString());
}

} // namespace zarvil
