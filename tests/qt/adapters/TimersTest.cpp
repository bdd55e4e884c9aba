#include "qt/adapters/QtRunLoop.h"

#include <QTest>

#include <gtest/gtest.h>

#include <limits>

namespace zarvil {
namespace {

/// Lets every timer due within the next milliseconds fire.
void passMilliseconds(double count) {
    QtTimers timers;
    bool passed = false;
    const auto end = timers.schedule(count / 1000, Repetition::Once, [&] { passed = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return passed; }));
}

TEST(QtTimersTest, aTimerEndedByItsOwnCallFiresNoMore) {
    for (const auto repetition : {Repetition::Once, Repetition::Repeating}) {
        QtTimers timers;
        const auto capture = std::make_shared<int>(0);
        std::unique_ptr<Timer> timer;
        timer = timers.schedule(0.001, repetition, [&timer, capture] {
            timer.reset();
            ++*capture; // the captures outlive the timer while the call runs
        });
        int others = 0;
        const auto other = timers.schedule(0.001, repetition, [&others] { ++others; });
        ASSERT_TRUE(QTest::qWaitFor([&] { return *capture > 0; }));
        passMilliseconds(20);
        EXPECT_EQ(*capture, 1);
        EXPECT_EQ(others > 1, repetition == Repetition::Repeating);
    }
}

TEST(QtTimersTest, intervalsOutOfRangeAreSoonOrNever) {
    using Limits = std::numeric_limits<double>;
    const std::pair<double, bool> cases[] = {{Limits::quiet_NaN(), true},
                                             {-5, true},
                                             {-Limits::infinity(), true},
                                             {1e300, false},
                                             {Limits::infinity(), false}};
    for (const auto& [interval, soon] : cases) {
        QtTimers timers;
        bool fired = false;
        const auto timer = timers.schedule(interval, Repetition::Once, [&] { fired = true; });
        passMilliseconds(20);
        EXPECT_EQ(fired, soon) << interval;
    }
}

} // namespace
} // namespace zarvil
