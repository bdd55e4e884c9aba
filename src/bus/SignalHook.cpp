#include "bus/SignalHook.h"

#include <QObject>

#include <utility>

namespace zarvil {

class SignalHook::Listener final : public QObject {
    Q_OBJECT

public:
    explicit Listener(Handler handler) : handler_(std::move(handler)) {}

public Q_SLOTS:
    void hear(const QDBusMessage& signal) {
        // A copy runs: the handler may end the hook, and this object with it.
        const Handler handler = handler_;
        handler(signal);
    }

private:
    Handler handler_;
};

SignalHook::SignalHook(QDBusConnection connection, const Signal& signal, Handler handler)
    : connection_(std::move(connection)),
      listener_(std::make_unique<Listener>(std::move(handler))) {
    connection_.connect(QString(), signal.path, signal.interface, signal.name, signal.arguments,
                        QString(), listener_.get(), SLOT(hear(QDBusMessage)));
}

SignalHook::~SignalHook() = default;

} // namespace zarvil

#include "SignalHook.moc"
