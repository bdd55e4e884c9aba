#include "bus/DBusMessageCenter.h"

#include "bus/DBusValues.h"
#include "protocol/BusNames.h"

#include <QDBusMessage>

#include <utility>

namespace zarvil {

namespace {

constexpr int flushTimeout = 1000; // milliseconds

} // namespace

DBusMessageCenter::DBusMessageCenter(MessageBus& bus, QString acceptFrom)
    : bus_(bus),
      acceptFrom_(std::move(acceptFrom)),
      inbox_([this](const QDBusMessage& signal, std::optional<Dictionary> payload) {
          deliver(signal, std::move(payload));
      }),
      gate_([this](const QDBusMessage& signal) { inbox_.receive(signal); }) {
    busState_ = bus_.observe([this](BusState state) { busChanged(state); });
}

DBusMessageCenter::~DBusMessageCenter() { flush(); }

void DBusMessageCenter::post(Message message) {
    if (connection_)
        send(message);
    else if (bus_.state() == BusState::Connecting)
        waiting_.push_back(std::move(message));
}

Subscription DBusMessageCenter::addObserver(std::string_view name, Handler handler) {
    const auto entry = observed_.try_emplace(std::string(name)).first;
    if (++entry->second.count == 1)
        watch(entry->first, entry->second);
    auto registration =
        std::make_shared<Subscription>(entry->second.observers.add(std::move(handler)));
    return Subscription(
        [this, alive = std::weak_ptr<char>(lifetime_), registration, key = entry->first] {
            registration->cancel();
            if (!alive.expired())
                forget(key);
        });
}

Subscription DBusMessageCenter::observeLink(const LinkObserver& observer) {
    observer(link_);
    return links_.add(observer);
}

void DBusMessageCenter::flush() {
    if (!unflushed_ || !connection_)
        return;
    unflushed_ = false;
    connection_->call(QDBusMessage::createMethodCall(
                          busName(), QStringLiteral("/org/freedesktop/DBus"),
                          QStringLiteral("org.freedesktop.DBus.Peer"), QStringLiteral("Ping")),
                      QDBus::Block, flushTimeout);
}

void DBusMessageCenter::busChanged(BusState state) {
    if (state == BusState::Connected)
        hookUp();
    else if (state == BusState::Unavailable)
        hang();
}

void DBusMessageCenter::hookUp() {
    connection_ = bus_.connection();
    for (auto& [name, observed] : observed_)
        if (observed.count > 0)
            watch(name, observed);
    if (!acceptFrom_.isEmpty())
        owner_ = std::make_unique<OwnerWatch>(
            *connection_, acceptFrom_,
            OwnerWatch::Reports{
                [this](const QString& owner) { ownerIs(owner); },
                [this](const QString& from, const QString& to) { ownerChanged(from, to); }});
    // An observer of the link may post: what waits goes first.
    for (const Message& message : std::exchange(waiting_, {}))
        send(message);
    if (std::exchange(link_, LinkEvent::Up) != LinkEvent::Up)
        links_.notify(link_);
}

void DBusMessageCenter::hang() {
    for (auto& entry : observed_)
        entry.second.hook.reset();
    connection_.reset();
    unflushed_ = false;
    waiting_.clear();
    owner_.reset();
    gate_.reset();
    inbox_.clear();
    peer_.clear();
    expectsNewcomer_ = true;
    if (std::exchange(link_, LinkEvent::Down) != LinkEvent::Down)
        links_.notify(link_);
}

void DBusMessageCenter::ownerIs(const QString& owner) {
    peerIs(owner);
    expectsNewcomer_ = true;
    gate_.ownerIs(owner);
}

void DBusMessageCenter::ownerChanged(const QString& from, const QString& to) {
    gate_.ownerChanged(from, to);
    expectsNewcomer_ = true;
    peerIs(to);
}

void DBusMessageCenter::peerIs(const QString& owner) {
    if (std::exchange(peer_, owner) != owner && !owner.isEmpty() && expectsNewcomer_)
        inbox_.follow([this] { links_.notify(LinkEvent::NewPeer); });
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
    if (acceptFrom_.isEmpty())
        inbox_.receive(signal);
    else
        gate_.receive(signal);
}

void DBusMessageCenter::deliver(const QDBusMessage& signal, std::optional<Dictionary> payload) {
    const auto found = observed_.find(signal.member().toStdString());
    if (found == observed_.end() || found->second.count == 0)
        return;
    Message message(found->first);
    message.userInfo = std::move(payload);
    found->second.observers.notify(message);
}

// One match a message name, so that the bus does not wake this process for its own broadcasts.
void DBusMessageCenter::watch(const std::string& name, Observed& observed) {
    if (connection_)
        observed.hook.emplace(
            *connection_, SignalHook::Signal{bus::path, bus::interface, QString::fromUtf8(name)},
            [this](const QDBusMessage& signal) { receive(signal); });
}

void DBusMessageCenter::forget(const std::string& name) {
    Observed& observed = observed_.find(name)->second;
    if (--observed.count == 0)
        observed.hook.reset();
}

} // namespace zarvil
