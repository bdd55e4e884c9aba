#pragma once

#include "platform/Time.h"
#include "protocol/NonCopyable.h"
#include "protocol/ObserverList.h"

#include <deque>
#include <functional>
#include <memory>
#include <tuple>

namespace zarvil {

/// Lets a pane's handlers run one at a time, each to its end: every timer tick, agent message,
/// action and edit enters through here. What comes while another one runs, or while the pane is
/// held, follows in the order in which it came. Used on the main thread only.
class HandlerQueue : NonCopyable {
public:
    /// Calls now, or later with copies of the arguments. What else the call refers to must live
    /// until it is made or discarded.
    template <typename Call, typename... Arguments>
    void run(Call call, const Arguments&... arguments) {
        if (!mayRun()) {
            // Named before they are captured: Objective-C++ front ends include this header, and
            // GNU's compiler has no captures with an initializer there.
            const std::tuple<Arguments...> copies(arguments...);
            waiting_.emplace_back([call, copies] { std::apply(call, copies); });
            return;
        }
        running_ = true;
        call(arguments...);
        running_ = false;
        runWaiting();
    }

    /// A timer whose ticks are handlers. Of a tick that waits there is only one, and none after
    /// the timer has been destroyed.
    [[nodiscard]] std::unique_ptr<Timer>
    schedule(Timers& timers, double interval, Repetition repetition, std::function<void()> call);

    /// Lets other handlers run, one at a time, while the handler under way waits in a modal loop.
    void letThroughDuring(const std::function<void()>& wait);

    /// Holds back everything that is not running yet until the result is cancelled or destroyed.
    [[nodiscard]] Subscription hold();

    /// Forgets what waits, for a pane that goes.
    void discard() { waiting_.clear(); }

    /// No handler is under way, waits, or is held.
    [[nodiscard]] bool isIdle() const { return mayRun() && modalLoops_ == 0 && waiting_.empty(); }
    /// Called whenever the last handler has ended.
    [[nodiscard]] Subscription observeIdle(std::function<void()> observer) {
        return idle_.add(std::move(observer));
    }

private:
    [[nodiscard]] bool mayRun() const { return !running_ && holds_ == 0; }
    void runWaiting();

    std::deque<std::function<void()>> waiting_;
    ObserverList<> idle_;
    int holds_ = 0;
    int modalLoops_ = 0;
    bool running_ = false;
};

} // namespace zarvil
