#pragma once

#include "platform/Authorization.h"

#include "bus/BusConnection.h"

#include <QObject>

class QDBusMessage;

namespace zarvil {

/// Asks polkit on the system bus whether this process, named by its connection, holds a right. The
/// right is an action of polkit under the product's identifier; the policy file in packaging
/// declares it. Each question connects to the bus if need be.
class PolkitAuthorization final : public QObject, public Authorization {
public:
    explicit PolkitAuthorization(BusOptions system = BusOptions::systemBus());

    /// The polkit action of a right.
    [[nodiscard]] static QString actionOf(std::string_view right);

    void check(std::string_view right, Interaction interaction, Reply reply) override;
    void release(std::string_view right) override;

private:
    struct Question;
    void ask(const Question& question);
    void answered(const Question& question, const QDBusMessage& answer);

    BusConnection system_;
    /// What polkit calls the right that a password has opened for a while, to give it back.
    QString temporaryRight_;
};

} // namespace zarvil
