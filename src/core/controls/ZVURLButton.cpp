#include "controls/ZVURLButton.h"

namespace zarvil {

std::unique_ptr<ZVURLButton> ZVURLButton::initWithLayout(Cursor& cursor, Rect frame) {
    auto button = std::make_unique<ZVURLButton>(cursor);
    button->setFrame(frame);
    button->setupTracking();
    return button;
}

void ZVURLButton::setupTracking() {
    addTrackingArea(std::make_shared<const TrackingArea>(TrackingArea{
        bounds(), trackingOption::mouseEnteredAndExited | trackingOption::activeInKeyWindow,
        nullptr}));
}

void ZVURLButton::mouseEntered(const TrackingArea* area) {
    cursor_.set(CursorShape::PointingHand);
    Button::mouseEntered(area);
}

void ZVURLButton::mouseExited(const TrackingArea* area) {
    cursor_.set(CursorShape::Arrow);
    Button::mouseExited(area);
}

} // namespace zarvil
