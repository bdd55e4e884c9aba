#pragma once

#include "platform/Authorization.h"

#include "bus/BusConnection.h"

#include <QObject>

class QDBusPendingCallWatcher;

namespace zarvil {

/// Asks polkit on the system bus whether this process holds a right. The right is an action of
/// polkit under the product's identifier; the policy file in packaging declares it. The first
/// question connects to the bus.
class PolkitAuthorization final : public QObject, public Authorization {
public:
    explicit PolkitAuthorization(BusConnection::Connect connect = BusConnection::systemBus());

    /// The polkit action of a right.
    [[nodiscard]] static QString actionOf(std::string_view right);

    void check(std::string_view right, Interaction interaction, Reply reply) override;

private:
    void ask(const QDBusConnection& bus, const QString& action, Interaction interaction,
             const Reply& reply);

    BusConnection system_;
};

} // namespace zarvil
