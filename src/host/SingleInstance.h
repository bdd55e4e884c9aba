#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace zarvil::host {

/// Sees to it that one host runs in a session: the one that owns the host's name on the bus. Asks
/// for the name of every new connection, on the connecting thread, so that the main thread waits
/// for nothing.
class SingleInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    enum class Standing {
        Unknown, ///< no bus has answered yet
        First,   ///< this process owns the name, or the bus gives it to nobody
        Second   ///< another process owns it
    };

    SingleInstance();
    ~SingleInstance() override;

    /// Takes the name on a connection; for `BusOptions::join`, and as long-lived as that.
    [[nodiscard]] std::function<void(const QDBusConnection&)> claim() const;

    /// By the connection made last. Safe to ask before that connection is announced.
    [[nodiscard]] Standing standing() const;
    /// Asks the first instance to show itself. Reports once, from the event loop, whether it
    /// answered within a second: one in health does within milliseconds, and the user waits.
    void raiseFirst(const QDBusConnection& bus, std::function<void(bool answered)> report);

public Q_SLOTS:
    /// Called over the bus by a second instance. The platform's hints are not used.
    Q_SCRIPTABLE void Activate(const QVariantMap& hints);

Q_SIGNALS:
    void activated();

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
};

} // namespace zarvil::host
