#pragma once

#include "platform/Time.h"

namespace zarvil::cocoa {

/// Timers of the main run loop in its default mode: they pause during a modal panel and while a
/// control follows the mouse.
class CocoaTimers final : public Timers {
public:
    [[nodiscard]] std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                                  std::function<void()> call) override;
};

} // namespace zarvil::cocoa
