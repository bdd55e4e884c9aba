#include "bus/BusDaemon.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>

namespace zarvil {

namespace {

const auto path = QStringLiteral("/org/freedesktop/DBus");

// Of the bus's RequestName.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint exists = 3;
constexpr uint alreadyOwner = 4;

bool isWellKnown(const QString& name) { return !name.startsWith(':') && name != busName(); }

} // namespace

QString busName() { return QStringLiteral("org.freedesktop.DBus"); }

QDBusMessage busCall(const char* method, const QVariantList& arguments) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(busName(), path, busName(), QString::fromLatin1(method));
    call.setArguments(arguments);
    return call;
}

QDBusMessage answer(const QDBusConnection& connection, const QDBusMessage& call, int limit) {
    QDBusPendingCall pending = connection.asyncCall(call, limit);
    pending.waitForFinished();
    return pending.reply();
}

QDBusMessage nameRequest(const QString& name) { return busCall("RequestName", {name, doNotQueue}); }

NameOutcome nameOutcome(const QDBusMessage& reply) {
    const QDBusReply<uint> code(reply);
    if (code.isValid() && (code.value() == primaryOwner || code.value() == alreadyOwner))
        return NameOutcome::Owned;
    return code.isValid() && code.value() == exists ? NameOutcome::Taken : NameOutcome::Refused;
}

std::vector<std::pair<QString, std::uint32_t>> ownedNames(const QDBusConnection& connection,
                                                          int limit) {
    const QDBusReply<QStringList> names = answer(connection, busCall("ListNames"), limit);
    // All questions go out before the first answer is waited for, so that the limits do not add up.
    std::vector<std::pair<QString, QDBusPendingReply<uint>>> answers;
    for (const QString& name : names.value())
        if (isWellKnown(name))
            answers.emplace_back(
                name, connection.asyncCall(busCall("GetConnectionUnixProcessID", {name}), limit));
    std::vector<std::pair<QString, std::uint32_t>> owned;
    for (auto& [name, process] : answers) {
        process.waitForFinished();
        if (process.isValid())
            owned.emplace_back(name, process.value());
    }
    return owned;
}

bool isActivatable(const QDBusConnection& connection, const QString& name, int limit) {
    const QDBusReply<QStringList> names =
        answer(connection, busCall("ListActivatableNames"), limit);
    return names.value().contains(name);
}

OwnerWatch::OwnerWatch(const QDBusConnection& connection, const QString& name, Reports reports)
    : reports_(std::move(reports)),
      changes_(connection, {path, busName(), QStringLiteral("NameOwnerChanged"), {name}},
               [this](const QDBusMessage& signal) { changed(signal); }) {
    auto* watcher =
        new QDBusPendingCallWatcher(connection.asyncCall(busCall("GetNameOwner", {name})), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QString> reply = *watcher;
        reports_.ownerIs(reply.isError() ? QString() : reply.value());
    });
}

void OwnerWatch::changed(const QDBusMessage& signal) {
    // Anyone can address a signal of this name to us; only the bus itself can have this sender.
    const QVariantList arguments = signal.arguments();
    if (signal.service() == busName() && arguments.size() == 3)
        reports_.ownerChanged(arguments[1].toString(), arguments[2].toString());
}

} // namespace zarvil
