#pragma once

#include "protocol/Value.h"

#include <QDBusMessage>
#include <QLoggingCategory>
#include <QVariantMap>

#include <optional>

/// Property lists as D-Bus values and back.
///
/// Sent: boolean b, integer x, floating d, string s, data ay, array av, dictionary a{sv}.
/// Read: any integer type as an integer (an unsigned one beyond 64 signed bits as a floating
/// number), o and g as strings, any array, any dictionary with textual keys, variants for what
/// they hold. An entry of another type is dropped alone and logged.
namespace zarvil {

Q_DECLARE_LOGGING_CATEGORY(busLog)

/// The one argument of a message. Text that D-Bus cannot carry (bytes that are no UTF-8, a zero
/// character) has U+FFFD in its place. Entries nested deeper than D-Bus allows are dropped and
/// logged. Empty when the whole is larger than D-Bus allows: the bus would cut off the sender.
[[nodiscard]] std::optional<QVariantMap> encodePayload(const Dictionary& info);

/// The payload of a received signal, none when it is missing, empty or of the wrong type. Logs
/// what it cannot read; never fails.
[[nodiscard]] std::optional<Dictionary> decodePayload(const QDBusMessage& signal);

} // namespace zarvil
