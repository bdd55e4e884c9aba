#include "platform/HandlerQueue.h"

#include <utility>

namespace zarvil {

namespace {

class QueuedTimer final : public Timer {
public:
    QueuedTimer(HandlerQueue& queue, Timers& timers, double interval, Repetition repetition,
                std::function<void()> call)
        : state_(std::make_shared<State>(State{std::move(call)})),
          timer_(timers.schedule(interval, repetition, [&queue, weak = std::weak_ptr(state_)] {
              tick(queue, weak.lock());
          })) {}

private:
    struct State {
        std::function<void()> call;
        bool waits = false;
    };

    static void tick(HandlerQueue& queue, const std::shared_ptr<State>& state) {
        if (!state || std::exchange(state->waits, true))
            return;
        queue.run([weak = std::weak_ptr(state)] {
            // Held here, for the call may destroy its timer.
            if (const auto due = weak.lock()) {
                due->waits = false;
                due->call();
            }
        });
    }

    std::shared_ptr<State> state_;
    std::unique_ptr<Timer> timer_;
};

} // namespace

std::unique_ptr<Timer> HandlerQueue::schedule(Timers& timers, double interval,
                                              Repetition repetition, std::function<void()> call) {
    return std::make_unique<QueuedTimer>(*this, timers, interval, repetition, std::move(call));
}

void HandlerQueue::letThroughDuring(const std::function<void()>& wait) {
    const bool running = std::exchange(running_, false);
    ++modalLoops_;
    runWaiting();
    wait();
    --modalLoops_;
    running_ = running;
}

Subscription HandlerQueue::hold() {
    ++holds_;
    return Subscription([this] {
        --holds_;
        runWaiting();
    });
}

void HandlerQueue::runWaiting() {
    while (mayRun() && !waiting_.empty()) {
        const auto call = std::move(waiting_.front());
        waiting_.pop_front();
        running_ = true;
        call();
        running_ = false;
    }
    if (isIdle())
        idle_.notify();
}

} // namespace zarvil
