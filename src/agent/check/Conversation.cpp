#include "agent/check/Conversation.h"

#include "bus/BusDaemon.h"
#include "bus/DBusValues.h"
#include "protocol/BusNames.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <algorithm>

namespace zarvil::check {

QString Conversation::open() {
    const auto& connection = bus_.wait(BusConnection::limit);
    if (!connection)
        return "there is no session bus: " + bus_.error();
    const QDBusMessage owner = connection->call(busCall("GetNameOwner", {QString(bus::agentName)}));
    if (owner.type() != QDBusMessage::ReplyMessage)
        return QStringLiteral("no agent runs: nobody owns the name ") + bus::agentName;
    agent_ = owner.arguments().value(0).toString();
    // An agent may take messages from its own preferences alone.
    if (nameOutcome(connection->call(nameRequest(bus::hostName))) != NameOutcome::Owned)
        return QStringLiteral("the preferences run: close them first");
    if (!QDBusConnection(*connection)
             .connect(QString(), bus::path, bus::interface, QString(), this,
                      SLOT(receive(QDBusMessage))))
        return QStringLiteral("the bus does not let this program listen");
    return {};
}

void Conversation::send(const Message& message) {
    QDBusMessage signal =
        QDBusMessage::createSignal(bus::path, bus::interface, QString::fromUtf8(message.name));
    signal << QVariant(encodePayload(message.info()).value_or(QVariantMap()));
    if (bus_.connection())
        bus_.connection()->send(signal);
}

void Conversation::sendNonsense(std::string_view name) {
    QDBusMessage signal = QDBusMessage::createSignal(
        bus::path, bus::interface,
        QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    signal << QStringLiteral("no dictionary") << 7;
    if (bus_.connection())
        bus_.connection()->send(signal);
}

std::size_t Conversation::countSince(std::size_t moment, std::string_view name) const {
    return static_cast<std::size_t>(
        std::count_if(heard_.begin() + static_cast<std::ptrdiff_t>(moment), heard_.end(),
                      [name](const Heard& heard) { return heard.message.name == name; }));
}

bool Conversation::waitFor(const Condition& condition, std::chrono::milliseconds limit) const {
    const QDeadlineTimer deadline(limit);
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

QStringList Conversation::owners() const {
    if (!bus_.connection())
        return {};
    const QDBusMessage reply =
        bus_.connection()->call(busCall("ListQueuedOwners", {QString(bus::agentName)}));
    if (reply.type() != QDBusMessage::ReplyMessage)
        return {};
    return reply.arguments().value(0).toStringList();
}

void Conversation::receive(const QDBusMessage& signal) {
    if (signal.service() != agent_)
        return;
    Message message(signal.member().toStdString());
    message.userInfo = decodePayload(signal);
    const QString signature = signal.signature();
    heard_.push_back({std::move(message), signature.isEmpty() || signature == u"a{sv}"});
}

} // namespace zarvil::check
