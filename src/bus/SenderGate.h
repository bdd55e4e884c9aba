#pragma once

#include <QDBusMessage>

#include <functional>
#include <vector>

namespace zarvil {

/// Lets through the signals of the connection that owns a well-known name, in order. Until the
/// owner is known signals are held, then judged by who owned the name when they were sent. The
/// reports must come in the order in which the bus sent them, mixed with the signals.
class SenderGate {
public:
    using Pass = std::function<void(const QDBusMessage&)>;

    explicit SenderGate(Pass pass) : pass_(std::move(pass)) {}

    /// Forgets the owner and what is held: the reports of a new connection follow.
    void reset();
    void receive(const QDBusMessage& signal);
    /// The answer to the question who owns the name; empty for nobody.
    void ownerIs(const QString& owner);
    void ownerChanged(const QString& from, const QString& to);

private:
    [[nodiscard]] bool isFromOwner(const QDBusMessage& signal) const;

    Pass pass_;
    bool ownerKnown_ = false;
    QString owner_;
    std::vector<QDBusMessage> held_;
};

} // namespace zarvil
