#pragma once

#include "platform/Clock.h"

namespace zarvil {

/// The system's clock.
class QtClock final : public Clock {
public:
    [[nodiscard]] double timeIntervalSinceReferenceDate() const override;
};

} // namespace zarvil
