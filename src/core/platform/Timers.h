#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace zarvil {

enum class Repetition : std::uint8_t { Once, Repeating };

/// A scheduled call. Destroying it invalidates it, also from within its own call.
class Timer {
public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    virtual ~Timer() = default;
};

/// Schedules calls on the main thread's run loop.
class Timers {
public:
    Timers() = default;
    Timers(const Timers&) = delete;
    Timers& operator=(const Timers&) = delete;
    virtual ~Timers() = default;

    /// The first call comes after `interval` seconds.
    [[nodiscard]] virtual std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                                          std::function<void()> call) = 0;
};

} // namespace zarvil
