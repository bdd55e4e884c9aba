#pragma once

#include "protocol/Value.h"

#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QLoggingCategory>
#include <QVariantMap>

#include <list>
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

/// Reads the payload of a received signal, in parts if need be. Logs what it cannot read; never
/// fails.
class PayloadReader {
public:
    explicit PayloadReader(const QDBusMessage& signal);
    PayloadReader(PayloadReader&& other) noexcept;
    PayloadReader& operator=(PayloadReader&& other) noexcept;
    ~PayloadReader();

    /// Reads on for as long as there is time, and a little in any case; whether all has been read.
    bool readUntil(const QDeadlineTimer& end);
    [[nodiscard]] bool isComplete() const { return levels_.empty(); }
    /// Of a payload that has been read: none when it is missing, empty or of the wrong type.
    [[nodiscard]] std::optional<Dictionary> take();

private:
    struct Level;

    void readNext();
    [[nodiscard]] bool open(const QVariant& variant);
    void close();

    std::list<Level> levels_; ///< from the outermost inwards
    Dictionary payload_;
};

/// The payload of a received signal at one go, none when it is missing, empty or of the wrong
/// type.
[[nodiscard]] std::optional<Dictionary> decodePayload(const QDBusMessage& signal);

} // namespace zarvil
