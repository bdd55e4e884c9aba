#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <cstdint>
#include <functional>
#include <memory>

namespace zarvil::host {

/// Sees to it that one host runs in a session: the one that owns the host's name on the bus. Asks
/// for the name of every new connection, on the connecting thread, so that the main thread waits
/// for nothing. To others it is an application of the desktop, whose actions are the tabs.
class SingleInstance final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")
public:
    enum class Standing {
        Unknown, ///< no bus has answered yet
        First,   ///< this process owns the name, or the bus gives it to nobody
        Second   ///< another process owns it
    };

    enum class FirstAnswer : std::uint8_t { Shown, NoSuchTab, None };
    /// Turns to the tab of that name; whether there is one.
    using ShowTab = std::function<bool(const QString& name)>;

    SingleInstance();
    ~SingleInstance() override;

    /// Takes the name on a connection; for `BusOptions::join`, and as long-lived as that.
    [[nodiscard]] std::function<void(const QDBusConnection&)> claim() const;

    /// By the connection made last. Safe to ask before that connection is announced.
    [[nodiscard]] Standing standing() const;
    /// Asks the first instance to show itself, at a tab unless its name is empty. Reports once,
    /// from the event loop, what it answered within a second: one in health does within
    /// milliseconds, and the user waits.
    void raiseFirst(const QDBusConnection& bus, const QString& tab,
                    std::function<void(FirstAnswer)> report);
    /// What serves an action; it is called after `activated`.
    void setShowTab(ShowTab showTab) { showTab_ = std::move(showTab); }

public Q_SLOTS:
    // Called over the bus by a second instance, a launcher or a menu of the desktop. Of the hints
    // the token counts that lets a Wayland window come to the front.
    Q_SCRIPTABLE void Activate(const QVariantMap& hints);
    /// There is nothing to open: a program that serves no type of file is given none.
    Q_SCRIPTABLE void Open(const QStringList& addresses, const QVariantMap& hints);
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameters,
                                     const QVariantMap& hints);

Q_SIGNALS:
    void activated();

private:
    struct Shared;
    std::shared_ptr<Shared> shared_;
    ShowTab showTab_;
};

} // namespace zarvil::host
