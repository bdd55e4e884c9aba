#pragma once

#include "protocol/Subscription.h"

namespace zarvil {
class AlertQueue;
}

namespace zarvil::cocoa {

/// Shows the queue's alerts in the application's standard alert, from the run loop.
[[nodiscard]] Subscription presentAlerts(AlertQueue& alerts);

} // namespace zarvil::cocoa
