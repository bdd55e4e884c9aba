#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace zarvil {

/// Far beyond what any wait takes on a loaded machine; only a failing test reaches it.
inline constexpr std::chrono::seconds waitLimit{20};

/// Runs the event loop until the condition holds; false when it does not within the limit.
template <typename Condition>
[[nodiscard]] bool waitFor(const Condition& condition,
                           std::chrono::milliseconds limit = waitLimit) {
    const QDeadlineTimer deadline(limit);
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer); // never early: nothing else may wake the loop
    alarm.start(limit);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace zarvil
