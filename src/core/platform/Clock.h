#pragma once

#include "protocol/NonCopyable.h"

namespace zarvil {

/// Reads the time.
class Clock : NonCopyable {
public:
    virtual ~Clock() = default;

    /// Seconds since the start of 2001, UTC.
    [[nodiscard]] virtual double timeIntervalSinceReferenceDate() const = 0;
};

} // namespace zarvil
