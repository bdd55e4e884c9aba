#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace zarvil {

/// Reads the time.
class Clock : NonCopyable {
public:
    virtual ~Clock() = default;

    /// Seconds since the start of 2001, UTC.
    [[nodiscard]] virtual double timeIntervalSinceReferenceDate() const = 0;
};

enum class Repetition : std::uint8_t { Once, Repeating };

/// A scheduled call. Destroying it invalidates it, also from within its own call.
class Timer : NonCopyable {
public:
    virtual ~Timer() = default;
};

/// Schedules calls on the main thread's run loop.
class Timers : NonCopyable {
public:
    virtual ~Timers() = default;

    /// The first call comes after `interval` seconds.
    [[nodiscard]] virtual std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                                          std::function<void()> call) = 0;
};

} // namespace zarvil
