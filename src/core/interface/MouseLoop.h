#pragma once

#include "interface/Geometry.h"
#include "protocol/NonCopyable.h"

namespace zarvil {

class Button;

/// What a button does between mouse-down and mouse-up: its cell follows the pointer, and a press
/// that ends well advances the state once and sends the action, but for a toggle whose state comes
/// out as it was just before the release. A front end forwards press, drag and release; points are
/// in the button's own coordinates, y growing downwards.
///
/// A cell that does not prefer tracking until mouse-up stops following the pointer that leaves the
/// button, starts anew when it comes back, and does nothing when it is let go outside.
class MouseLoop : NonCopyable {
public:
    /// The button must outlive the loop.
    explicit MouseLoop(Button& button) : button_(button) {}

    /// False, and nothing begins, when the button is disabled or the point misses it.
    bool press(Point point);
    void drag(Point point);
    /// The action may destroy the button together with this loop.
    void release(Point point);
    /// Ends a press without an outcome, as when the window loses the mouse.
    void cancel();

    /// A press is under way, whether or not the pointer is over the button.
    [[nodiscard]] bool isPressed() const { return pressed_; }

private:
    [[nodiscard]] bool isHit(Point point) const;
    void enter(Point point);
    void leave(Point point, bool mouseIsUp);

    Button& button_;
    Point last_;
    bool pressed_ = false;
    bool over_ = false;     ///< the pointer counts as being over the button
    bool tracking_ = false; ///< the cell still wants to follow it there
};

} // namespace zarvil
