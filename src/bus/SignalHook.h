#pragma once

#include "protocol/NonCopyable.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

namespace zarvil {

/// Hands the signals that it hears to a handler, which may end it.
class SignalListener final : public QObject {
    Q_OBJECT

public:
    using Handler = std::function<void(const QDBusMessage&)>;
    explicit SignalListener(Handler handler) : handler_(std::move(handler)) {}

public Q_SLOTS:
    void hear(const QDBusMessage& signal) const;

private:
    Handler handler_;
};

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
    using Handler = SignalListener::Handler;

    SignalHook(QDBusConnection connection, const Signal& signal, Handler handler);

private:
    QDBusConnection connection_;
    std::unique_ptr<SignalListener> listener_;
};

} // namespace zarvil
