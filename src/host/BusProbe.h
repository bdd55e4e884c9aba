#pragma once

#include <chrono>

namespace zarvil::host {

/// False when something listens at the session bus's address but says nothing within the limit.
/// Qt connects to that bus while it makes the application object and would wait for half a minute
/// and more; a bus in health answers at once. True when there is no bus, which Qt notices itself,
/// and for addresses that are not of a local socket.
[[nodiscard]] bool sessionBusAnswers(std::chrono::milliseconds limit);

/// Makes this process do without a session bus. Before the application object.
void disableSessionBus();

} // namespace zarvil::host
