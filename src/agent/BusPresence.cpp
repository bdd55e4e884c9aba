#include "agent/BusPresence.h"

#include "bus/BusDaemon.h"
#include "protocol/BusNames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace zarvil::agent {

BusPresence::BusPresence(BusConnection& session, AgentApplication& agent)
    : session_(session),
      agent_(agent),
      busState_(session.observe([this](BusState state) { busChanged(state); })) {}

void BusPresence::busChanged(BusState state) {
    if (state == BusState::Connected)
        takeName();
    else if (state == BusState::Unavailable)
        agent_.problem("No session bus: " + session_.error());
}

void BusPresence::takeName() {
    auto* watcher = new QDBusPendingCallWatcher(
        session_.connection()->asyncCall(nameRequest(bus::agentName)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        nameAnswered(watcher->reply());
    });
}

void BusPresence::nameAnswered(const QDBusMessage& reply) {
    if (!session_.connection())
        return; // The bus went meanwhile; the next one is asked again.
    const NameOutcome outcome = nameOutcome(reply);
    if (outcome == NameOutcome::Owned) {
        agent_.ready();
        return;
    }
    const QString why = outcome == NameOutcome::Taken ? QStringLiteral("another agent is running")
                                                      : reply.errorMessage();
    agent_.fail(QStringLiteral("Cannot own the name %1 on the session bus: %2")
                    .arg(QString(bus::agentName), why));
}

} // namespace zarvil::agent
