#pragma once

#include "platform/ModalLoop.h"
#include "platform/Time.h"

#include <QObject>

#include <functional>
#include <mutex>
#include <vector>

class QEventLoop;

namespace zarvil {

/// Timers on the event loop of the thread that schedules them, to the millisecond.
class QtTimers final : public Timers {
public:
    /// An interval that is not a number or below a millisecond counts as one millisecond.
    [[nodiscard]] std::unique_ptr<Timer> schedule(double interval, Repetition repetition,
                                                  std::function<void()> call) override;
};

/// Nested event loops. Shows nothing: the panel's binding does. Quitting the application ends all
/// of them.
class QtModalLoop final : public ModalLoop {
public:
    void runModalForWindow(Panel& panel) override;
    void stopModal() override;

private:
    std::vector<QEventLoop*> running_; // innermost last
};

/// Hands calls over to the main thread, on which it lives, in their order.
class QtMainThread final : public QObject {
    Q_OBJECT

public:
    /// From any thread. The event loop makes the call, unless this goes before.
    void call(std::function<void()> function);

private Q_SLOTS:
    void work();

private:
    std::mutex mutex_;
    std::vector<std::function<void()>> waiting_;
};

} // namespace zarvil
