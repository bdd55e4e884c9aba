#import "cocoa/adapters/CocoaTimers.h"

#import "cocoa/support/Call.h"
#import "cocoa/support/Ref.h"

namespace zarvil::cocoa {

namespace {

class CocoaTimer final : public Timer {
public:
    CocoaTimer(double interval, Repetition repetition, const std::function<void()>& call)
        : timer_([NSTimer timerWithTimeInterval:interval
                                         target:[ZVCall callWithFunction:call]
                                       selector:@selector(run:)
                                       userInfo:nil
                                        repeats:repetition == Repetition::Repeating]) {
        [[NSRunLoop mainRunLoop] addTimer:timer_.get() forMode:NSDefaultRunLoopMode];
    }
    CocoaTimer(const CocoaTimer&) = delete;
    CocoaTimer& operator=(const CocoaTimer&) = delete;
    ~CocoaTimer() override { [timer_.get() invalidate]; }

private:
    Ref<NSTimer> timer_;
};

} // namespace

std::unique_ptr<Timer> CocoaTimers::schedule(double interval, Repetition repetition,
                                             std::function<void()> call) {
    return std::make_unique<CocoaTimer>(interval, repetition, call);
}

} // namespace zarvil::cocoa
