#pragma once

#include <QByteArray>

#include <chrono>

namespace zarvil {

/// The addresses of the buses as the bus library finds them.
[[nodiscard]] QByteArray sessionBusAddress();
[[nodiscard]] QByteArray systemBusAddress();

/// False when something listens at the address but says nothing within the limit; a bus in health
/// answers at once. Qt would wait for such a bus for half a minute and more, with all its other
/// connections. True when nothing listens, which Qt notices itself, and for addresses that are not
/// of a local socket.
[[nodiscard]] bool busAnswers(const QByteArray& address, std::chrono::milliseconds limit);

} // namespace zarvil
