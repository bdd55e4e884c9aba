#pragma once

#include "bus/BusConnection.h"

#include <QObject>
#include <QVariantMap>

#include <memory>

namespace zarvil::host {

/// Sees to it that one host runs in a session: the one that owns the host's name on the bus. Asks
/// for the name on the connecting thread, so that the main thread waits for nothing.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    enum class Standing {
        Unknown, ///< the bus has not answered yet
        First,   ///< this process owns the name
        Second,  ///< another process owns it
        NoBus    ///< there is no session bus, or it refuses the name
    };

    SingleInstance();
    ~SingleInstance() override;

    /// Connects as `connect` does and asks for the name; for the session's `BusConnection`.
    [[nodiscard]] BusConnection::Connect claiming(BusConnection::Connect connect) const;

    /// May know more than the last `decided`: the answer may have come and not been announced.
    [[nodiscard]] Standing standing() const;
    /// Asks the first instance to show itself; false when it does not answer. Waits at most a few
    /// seconds: this process has nothing else to do.
    [[nodiscard]] static bool raiseFirst(const QDBusConnection& bus);

public Q_SLOTS:
    /// Called over the bus by a second instance. The platform's hints are not used.
    Q_SCRIPTABLE void Activate(const QVariantMap& hints);

Q_SIGNALS:
    /// Once, from the event loop.
    void decided();
    void activated();

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

} // namespace zarvil::host
