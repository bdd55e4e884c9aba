#include "interface/MouseLoop.h"

#include "interface/Button.h"

#include <utility>

namespace zarvil {

bool MouseLoop::isHit(Point point) const {
    return button_.cell().hitTestForEvent(point, button_.bounds(), &button_) &
           cellHit::trackableArea;
}

void MouseLoop::enter(Point point) {
    over_ = true;
    last_ = point;
    button_.cell().setHighlighted(true);
    tracking_ = button_.cell().startTrackingAt(point, &button_);
}

void MouseLoop::leave(Point point, bool mouseIsUp) {
    over_ = false;
    if (std::exchange(tracking_, false))
        button_.cell().stopTracking(last_, point, &button_, mouseIsUp);
    button_.cell().setHighlighted(false);
}

bool MouseLoop::press(Point point) {
    if (pressed_)
        cancel();
    if (!button_.isEnabled() || !isHit(point))
        return false;
    pressed_ = true;
    enter(point);
    return true;
}

void MouseLoop::drag(Point point) {
    if (!pressed_)
        return;
    const bool follows = button_.cell().prefersTrackingUntilMouseUp() || isHit(point);
    if (!follows) {
        if (over_)
            leave(point, false);
        return;
    }
    if (!over_)
        enter(point);
    else if (tracking_)
        tracking_ = button_.cell().continueTracking(last_, point, &button_);
    last_ = point;
}

void MouseLoop::release(Point point) {
    if (!pressed_)
        return;
    if (!button_.isEnabled()) {
        cancel();
        return;
    }
    pressed_ = false;
    const bool counts = button_.cell().prefersTrackingUntilMouseUp() || isHit(point);
    const int stateBefore = button_.state();
    if (over_)
        leave(point, true);
    if (counts)
        button_.completePress(stateBefore);
}

void MouseLoop::cancel() {
    if (!pressed_)
        return;
    pressed_ = false;
    // The cell may set a state in expectation of the advance that now does not come.
    const int state = button_.state();
    if (over_)
        leave(last_, false);
    button_.setState(state);
}

} // namespace zarvil
