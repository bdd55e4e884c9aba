#include "bus/SenderGate.h"

#include "bus/DBusValues.h"

#include <algorithm>
#include <iterator>

namespace zarvil {

void SenderGate::reset() {
    ownerKnown_ = false;
    owner_.clear();
    held_.clear();
}

void SenderGate::receive(const QDBusMessage& signal) {
    if (!ownerKnown_) {
        held_.push_back(signal);
        return;
    }
    if (isFromOwner(signal))
        accepted_.push_back(signal);
    pass();
}

void SenderGate::ownerIs(const QString& owner) {
    owner_ = owner;
    ownerKnown_ = true;
    std::ranges::copy_if(held_, std::back_inserter(accepted_),
                         [this](const QDBusMessage& signal) { return isFromOwner(signal); });
    held_.clear();
    pass();
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

// A handler may run an event loop, in which more is received: that call then goes on with what is
// left here, so that the order is kept and nothing waits for the loop's end.
void SenderGate::pass() {
    while (!accepted_.empty()) {
        const QDBusMessage signal = accepted_.front();
        accepted_.pop_front();
        pass_(signal);
    }
}

} // namespace zarvil
