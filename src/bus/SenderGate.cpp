#include "bus/SenderGate.h"

#include "bus/DBusValues.h"

#include <utility>

namespace zarvil {

void SenderGate::reset() {
    ownerKnown_ = false;
    owner_.clear();
    held_.clear();
}

void SenderGate::receive(const QDBusMessage& signal) {
    if (!ownerKnown_)
        held_.push_back(signal);
    else if (isFromOwner(signal))
        pass_(signal);
}

void SenderGate::ownerIs(const QString& owner) {
    owner_ = owner;
    ownerKnown_ = true;
    for (const QDBusMessage& signal : std::exchange(held_, {}))
        receive(signal);
}

void SenderGate::ownerChanged(const QString& from, const QString& to) {
    // What is held was sent before the change, while `from` owned the name.
    if (!ownerKnown_)
        ownerIs(from);
    owner_ = to;
}

bool SenderGate::isFromOwner(const QDBusMessage& signal) const {
    if (!owner_.isEmpty() && signal.service() == owner_)
        return true;
    qCDebug(busLog, "Ignored %s from %s", qUtf8Printable(signal.member()),
            qUtf8Printable(signal.service()));
    return false;
}

} // namespace zarvil
