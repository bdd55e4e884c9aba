#pragma once

#include "platform/Time.h"

#include <chrono>

namespace zarvil::posix {

/// The computer's clock.
class PosixClock final : public Clock {
public:
    [[nodiscard]] double timeIntervalSinceReferenceDate() const override {
        using namespace std::chrono;
        constexpr sys_days referenceDate{year{2001} / January / 1};
        return duration<double>(system_clock::now() - referenceDate).count();
    }
};

} // namespace zarvil::posix
