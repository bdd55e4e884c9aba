#include "qt/adapters/QtRunLoop.h"

#include <QEventLoop>
#include <QTimer>

#include <limits>
#include <utility>

namespace zarvil {

namespace {

int milliseconds(double seconds) {
    constexpr double longest = std::numeric_limits<int>::max();
    const double wanted = seconds * 1000;
    if (!(wanted >= 1))
        return 1;
    return wanted >= longest ? std::numeric_limits<int>::max() : qRound(wanted);
}

class QtTimer final : public Timer {
public:
    QtTimer(double interval, Repetition repetition, std::function<void()> call)
        : call_(std::move(call)) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setSingleShot(repetition == Repetition::Once);
        // A copy runs: the call may destroy this timer, and the original with it.
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
            const auto running = call_;
            running();
        });
        timer_.start(milliseconds(interval));
    }

private:
    std::function<void()> call_;
    QTimer timer_;
};

} // namespace

std::unique_ptr<Timer> QtTimers::schedule(double interval, Repetition repetition,
                                          std::function<void()> call) {
    return std::make_unique<QtTimer>(interval, repetition, std::move(call));
}

void QtModalLoop::runModalForWindow(Panel& /*panel*/) {
    QEventLoop loop;
    running_.push_back(&loop);
    loop.exec();
    running_.pop_back();
}

void QtModalLoop::stopModal() {
    if (!running_.empty())
        running_.back()->quit();
}

void QtMainThread::call(std::function<void()> function) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(function));
    }
    // The event carries nothing: of Qt as it is delivered the thread sanitizer does not see the
    // lock of its queue.
    QMetaObject::invokeMethod(this, "work", Qt::QueuedConnection);
}

void QtMainThread::work() {
    std::vector<std::function<void()>> calls;
    {
        const std::lock_guard lock(mutex_);
        calls.swap(waiting_);
    }
    for (const auto& call : calls)
        call();
}

} // namespace zarvil
