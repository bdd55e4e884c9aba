#pragma once

#include "bus/SignalHook.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

/// Well-known names on a bus: taking one, who owns one, which processes own them.
namespace zarvil {

/// The bus's own name.
[[nodiscard]] QString busName();

/// A call of one of the bus's own methods.
[[nodiscard]] QDBusMessage busCall(const char* method, const QVariantList& arguments = {});

/// Asks and waits for the reply, at most `limit` milliseconds. A connection's own call would also
/// write its last error, which is shared with whoever else waits for a reply, and has no lock.
[[nodiscard]] QDBusMessage answer(const QDBusConnection& connection, const QDBusMessage& call,
                                  int limit);

enum class NameOutcome : std::uint8_t {
    Owned,
    Taken,  ///< another connection owns it
    Refused ///< the bus says no or nothing
};

/// The request for a name, without waiting in line for it, and what the bus's reply means.
[[nodiscard]] QDBusMessage nameRequest(const QString& name);
[[nodiscard]] NameOutcome nameOutcome(const QDBusMessage& reply);

/// The well-known names on the bus in its order, with the processes of their owners. Waits for the
/// bus, at most about `limit` milliseconds twice over.
[[nodiscard]] std::vector<std::pair<QString, std::uint32_t>>
ownedNames(const QDBusConnection& connection, int limit);

/// Whether the bus could start the owner of a well-known name. Waits for the bus, at most about
/// `limit` milliseconds.
[[nodiscard]] bool isActivatable(const QDBusConnection& connection, const QString& name, int limit);

/// Follows who owns a well-known name. Reports come in the order of the bus, mixed with the
/// signals of the same connection. The bus library's own filter by well-known name would block to
/// ask for the owner, and let through what others address to this connection directly.
class OwnerWatch final : public QObject {
public:
    struct Reports {
        /// The answer to the question who owns the name; empty for nobody.
        std::function<void(const QString& owner)> ownerIs;
        std::function<void(const QString& from, const QString& to)> ownerChanged;
    };
    OwnerWatch(const QDBusConnection& connection, const QString& name, Reports reports);

private:
    void changed(const QDBusMessage& signal);

    Reports reports_;
    SignalHook changes_;
};

} // namespace zarvil
