#pragma once

#include <QDBusConnection>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace zarvil {

/// A connection to a message bus, made on a thread of its own: connecting waits for the bus, up to
/// half a minute for one that hangs, and the main thread must not.
class BusConnection : public QObject {
public:
    /// Makes the connection; called once, on the other thread. It must not refer to anything that
    /// may be gone by then.
    using Connect = std::function<QDBusConnection()>;
    /// The connection may turn out not to be connected.
    using Ready = std::function<void(const QDBusConnection&)>;

    explicit BusConnection(Connect connect);
    /// Waits a moment for an attempt under way, so that its thread is gone before the program's
    /// statics are. A thread that hangs is left behind, and `anyHangs` says so from then on.
    ~BusConnection() override;

    /// Whether a thread was left behind: then the process must end without destroying statics.
    [[nodiscard]] static bool anyHangs();

    /// The desktop session's bus: the connection of the whole process, which Qt's accessibility
    /// opens anyway, so that what is sent on it keeps its order whoever sends it.
    [[nodiscard]] static Connect sessionBus();
    /// The system's bus, unless it hangs: then Qt would keep its other connections waiting too.
    [[nodiscard]] static Connect systemBus();

    /// Starts connecting; a second call does nothing.
    void start();
    /// Starts connecting if need be and calls back from the event loop, never from within.
    /// Nothing is called once `context` or this object is gone.
    void whenReady(QObject* context, Ready ready);
    /// Starts connecting if need be; nothing unless it has ended by then and is connected.
    [[nodiscard]] std::optional<QDBusConnection> wait(std::chrono::milliseconds limit);

private:
    struct Shared;
    void announce();

    std::shared_ptr<Shared> shared_;
    std::thread thread_;
    std::vector<std::function<void(const QDBusConnection&)>> waiting_;
};

} // namespace zarvil
