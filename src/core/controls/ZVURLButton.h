#pragma once

#include "interface/Button.h"
#include "platform/Pointer.h"

namespace zarvil {

/// A button that behaves like a link of a web page: the pointer over it is a hand. One made in
/// code follows no pointer, on purpose; only one made from a layout does.
class ZVURLButton : public Button {
public:
    /// The cursor must outlive the button.
    explicit ZVURLButton(Cursor& cursor) : cursor_(cursor) {}
    /// As a layout makes it: with a frame, and following the pointer.
    [[nodiscard]] static std::unique_ptr<ZVURLButton> initWithLayout(Cursor& cursor, Rect frame);

    /// Follows the pointer over the bounds as they are now, while the window has the keyboard.
    void setupTracking();
    void mouseEntered(const TrackingArea* area) override;
    void mouseExited(const TrackingArea* area) override;

private:
    Cursor& cursor_;
};

} // namespace zarvil
