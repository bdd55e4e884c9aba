#pragma once

#include "agent/AgentApplication.h"
#include "bus/BusConnection.h"
#include "bus/DBusMessageCenter.h"

class QDBusMessage;

namespace zarvil::agent {

/// Takes the agent's name on each connection to the session bus, and reports that the agent is
/// ready once it is owned; the agent fails when another process has it.
class BusPresence final : public QObject {
public:
    /// After a message center of the session was made: whoever sees the name may speak at once.
    BusPresence(BusConnection& session, AgentApplication& agent);

private:
    void busChanged(BusState state);
    void takeName();
    void nameAnswered(const QDBusMessage& reply);

    BusConnection& session_;
    AgentApplication& agent_;
    Subscription busState_;
};

} // namespace zarvil::agent
