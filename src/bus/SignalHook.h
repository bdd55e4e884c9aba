#pragma once

#include "protocol/NonCopyable.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace zarvil {

/// One signal of a connection, from any sender, led to a handler on the main thread for as long as
/// this lives; the handler may end it. When the bus library closes a connection, its own thread
/// still reaches the objects that listened, while they may be destroyed. So what listens here is
/// gone before the connection is, which stays open until then.
class SignalHook : NonCopyable {
public:
    struct Signal {
        QString path;
        QString interface;
        QString name;
        QStringList arguments{}; ///< the first ones, as they must be
    };
    using Handler = std::function<void(const QDBusMessage&)>;

    SignalHook(QDBusConnection connection, const Signal& signal, Handler handler);
    ~SignalHook();

private:
    class Listener;

    QDBusConnection connection_;
    std::unique_ptr<Listener> listener_;
};

} // namespace zarvil
