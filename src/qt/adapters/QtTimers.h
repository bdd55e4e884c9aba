#pragma once

#include "platform/Timers.h"

namespace zarvil {

/// Timers on the event loop of the thread that schedules them, to the millisecond.
class QtTimers final : public Timers {
public:
    /// An interval that is not a number or below a millisecond counts as one millisecond.
    [[nodiscard]] std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                                  std::function<void()> call) override;
};

} // namespace zarvil
