#include "controls/KXButtonCell.h"

#include "interface/View.h"

namespace zarvil {

namespace {

/// What counts as a click where the desktop does not tell.
constexpr StickyClick fallbackClick{static_cast<double>(0.3F), {6, 6}};

} // namespace

KXButtonCell::KXButtonCell(std::optional<StickyClick> desktop, const Clock& clock) : clock_(clock) {
    setFocusRingType(defaultFocusRingType());
    const StickyClick click = desktop.value_or(fallbackClick);
    _clickTimeout = click.timeout;
    _clickBias = click.bias;
}

unsigned KXButtonCell::hitTestForEvent(Point location, Rect cellFrame,
                                       View* /*controlView*/) const {
    return cellFrame.contains(location) ? cellHit::contentArea | cellHit::trackableArea
                                        : cellHit::none;
}

bool KXButtonCell::startTrackingAt(Point start, View* /*controlView*/) {
    _tracking = true;
    _startTrackingPoint = start;
    _tracingPoint = start;
    _startTrackingTime = clock_.timeIntervalSinceReferenceDate();
    _trackingTime = _startTrackingTime;
    return true;
}

bool KXButtonCell::continueTracking(Point /*last*/, Point current, View* controlView) {
    _tracingPoint = current;
    if (auto* redrawing = dynamic_cast<CellDrawing*>(controlView))
        redrawing->drawCell(*this);
    return true;
}

/// The travel is signed, on purpose: a quick flick to the left or towards lower y is a click
/// however far it goes.
bool KXButtonCell::isClick(Point stop) const {
    return _clickBias.width > stop.x - _startTrackingPoint.x &&
           _clickBias.height > stop.y - _startTrackingPoint.y &&
           _clickTimeout > _trackingTime - _startTrackingTime;
}

void KXButtonCell::stopTracking(Point /*last*/, Point stop, View* controlView, bool /*mouseIsUp*/) {
    _tracking = false;
    _trackingTime = clock_.timeIntervalSinceReferenceDate();
    if (isClick(stop))
        return;
    const Size size = controlView ? controlView->frame().size() : Size{};
    const double middle = size.width * 0.5;
    const double position = _tracingPoint.x + (size.height - 2) * 0.5;
    if (middle > position)
        setState(buttonState::on);
    else if (position > middle)
        setState(buttonState::off);
}

} // namespace zarvil
