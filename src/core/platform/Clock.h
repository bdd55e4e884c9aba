#pragma once

namespace zarvil {

/// Reads the time.
class Clock {
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// Seconds since the start of 2001, UTC.
    [[nodiscard]] virtual double timeIntervalSinceReferenceDate() const = 0;
};

} // namespace zarvil
