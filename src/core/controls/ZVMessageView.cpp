#include "controls/ZVMessageView.h"

#include "controls/Bevel.h"

namespace zarvil {

namespace {

/// The first colors lie at the top: y grows upwards here.
constexpr Bevel panelBevel{6, -90, 0.5F, 0.2F};
constexpr double grooveDistance = 40;
constexpr Color grooveLight = Color::gray(1, static_cast<double>(0.4F));

/// The line's y counts from zero, not from the bounds' origin, on purpose.
void strokeGrooveLine(const Rect& bounds, double distance, const Color& color, Canvas& canvas) {
    const double y = bounds.height - distance;
    const Path line = Line{{bounds.x, y}, {bounds.x + bounds.width, y}};
    canvas.stroke(translated(line, 0, 0.5), color, 1);
}

} // namespace

ZVMessageView::ZVMessageView(ImageRenderer& renderer, Rect frame) : renderer_(renderer) {
    setFrame(frame);
    setBackground(generateBackground());
}

ZVMessageView::~ZVMessageView() {
    if (area)
        removeTrackingArea(*area);
}

std::shared_ptr<const Image> ZVMessageView::generateBackground() const {
    return renderer_.render(bounds().size(), [rect = bounds()](Canvas& canvas) {
        drawBevel(panelBevel, rect, canvas);
    });
}

void ZVMessageView::setupTracking(std::shared_ptr<TrackingDelegate> delegate) {
    // The frame stands where bounds would be expected, on purpose.
    area = std::make_shared<const TrackingArea>(
        TrackingArea{frame(), trackingOption::mouseEnteredAndExited | trackingOption::activeAlways,
                     std::move(delegate)});
    addTrackingArea(area);
}

void ZVMessageView::mouseEntered(const TrackingArea* trackingArea) {
    if (!trackingArea)
        return;
    if (auto* pausing = dynamic_cast<TimerPausing*>(trackingArea->delegate.get()))
        pausing->pauseTimer();
}

void ZVMessageView::mouseExited(const TrackingArea* trackingArea) {
    if (!trackingArea)
        return;
    if (auto* resuming = dynamic_cast<TimerResuming*>(trackingArea->delegate.get()))
        resuming->resumeTimer();
}

void ZVMessageView::drawRect(Canvas& canvas) {
    if (_background) {
        if (_background->size() != frame().size())
            setBackground(generateBackground());
        canvas.drawImage(*_background, bounds(), 1);
    }
    strokeGrooveLine(bounds(), grooveDistance, Color::gray(0), canvas);
    strokeGrooveLine(bounds(), grooveDistance + 1, grooveLight, canvas);
}

} // namespace zarvil
