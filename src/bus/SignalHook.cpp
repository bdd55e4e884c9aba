#include "bus/SignalHook.h"

namespace zarvil {

void SignalListener::hear(const QDBusMessage& signal) const {
    // A copy runs: the handler may end the hook, and this object with it.
    const Handler handler = handler_;
    handler(signal);
}

SignalHook::SignalHook(QDBusConnection connection, const Signal& signal, Handler handler)
    : connection_(std::move(connection)),
      listener_(std::make_unique<SignalListener>(std::move(handler))) {
    connection_.connect(QString(), signal.path, signal.interface, signal.name, signal.arguments,
                        QString(), listener_.get(), SLOT(hear(QDBusMessage)));
}

} // namespace zarvil
