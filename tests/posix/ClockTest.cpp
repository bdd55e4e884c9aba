#include "posix/PosixClock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace zarvil::posix {
namespace {

TEST(PosixClockTest, countsFromTheStartOf2001) {
    constexpr std::time_t startOf2001 = 978'307'200; // in seconds after the start of 1970
    const auto before = static_cast<double>(std::time(nullptr) - startOf2001);
    const double now = PosixClock().timeIntervalSinceReferenceDate();
    EXPECT_GE(now, before);
    EXPECT_LT(now, before + 5);
}

} // namespace
} // namespace zarvil::posix
