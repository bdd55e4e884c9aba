#include "controls/KXButtonCell.h"

#include <algorithm>

namespace zarvil {

namespace {

/// The constants are single-precision ones, as colors of the original platform were.
constexpr Color black(float alpha) { return Color::gray(0, static_cast<double>(alpha)); }

constexpr Color washOut = Color::gray(1, static_cast<double>(0.66F));
constexpr double titleSizeOfTrack = static_cast<double>(0.6F);
constexpr double titleMargin = 4;
constexpr double outlineWidth = 0.5;
constexpr double trackAngle = 90;

const Gradient& trackGradient() {
    static const Gradient gradient =
        Gradient::evenlySpaced({black(0.6F), black(0.4F), black(0.3F)});
    return gradient;
}

} // namespace

/// Where everything is, in the control view's coordinates.
struct KXButtonCell::Geometry {
    Rect track;
    Rect knob;

    [[nodiscard]] Path pill() const {
        return RoundedRect{track, {track.height * 0.5, track.height * 0.5}};
    }
    /// The dark glow inside the track's edge and around the knob.
    [[nodiscard]] Shadow glow() const { return {Color::gray(0), track.height * 0.25, {0, 0}}; }
};

KXButtonCell::Geometry KXButtonCell::geometry(const Rect& frame) const {
    const Rect track{frame.x + 1, frame.y + 1, frame.width - 2, frame.height - 2};
    const double diameter = track.height - 2;
    const double off = track.x + 1;
    const double on = track.x + track.width - diameter - 1;
    double x = state() == buttonState::on ? on : off;
    if (_tracking) {
        // Not a clamp of the library: in a cell that is too small, on lies left of off.
        const double candidate = x + (_tracingPoint.x - _startTrackingPoint.x);
        x = candidate < off ? off : candidate > on ? on : candidate;
    }
    return {track, {x, track.y + 1, diameter, diameter}};
}

void KXButtonCell::drawWithFrame(const Rect& frame, View* /*controlView*/, Canvas& canvas) const {
    const Geometry geometry = this->geometry(frame);
    canvas.beginTransparencyLayer();

    canvas.saveState();
    canvas.clip(geometry.pill());
    drawTrack(geometry, canvas);
    canvas.restoreState();

    canvas.saveState();
    canvas.clip(geometry.pill());
    if (_showStateExtras)
        drawTitles(geometry, canvas);
    drawKnob(geometry, canvas);
    if (!isEnabled()) {
        // The knob's shadow is still set, on purpose: the wash casts it too.
        canvas.setBlendMode(BlendMode::Lighten);
        canvas.fill(geometry.track, washOut);
    }
    canvas.restoreState();

    canvas.endTransparencyLayer();
}

void KXButtonCell::drawTrack(const Geometry& geometry, Canvas& canvas) const {
    if (_backgroundColor)
        canvas.fill(geometry.track, *_backgroundColor);
    canvas.fill(geometry.track, trackGradient(), trackAngle);
    canvas.setShadow(geometry.glow());
    canvas.stroke(geometry.pill(), Color::gray(0), outlineWidth);
}

void KXButtonCell::drawTitles(const Geometry& geometry, Canvas& canvas) const {
    const Rect& track = geometry.track;
    const Rect& knob = geometry.knob;
    const TextStyle style{titleSizeOfTrack * track.height, _fontColor.value_or(color::white),
                          TextAlignment::Left};
    const double widest = track.width - 2 * titleMargin - knob.width;
    const auto box = [&](const Size& size, double left) {
        // The frame's y is left out, on purpose: the cell is drawn at the top of its control.
        return Rect{left, (track.height - size.height) * 0.5 + 1, std::min(size.width, widest),
                    size.height};
    };
    if (!_onTitle.empty()) {
        const Size size = canvas.sizeOfText(_onTitle, style);
        const double width = std::min(size.width, widest);
        canvas.drawText(_onTitle, box(size, knob.x - width - titleMargin), style);
    }
    if (!_offTitle.empty()) {
        const Size size = canvas.sizeOfText(_offTitle, style);
        canvas.drawText(_offTitle, box(size, knob.x + knob.width + titleMargin), style);
    }
}

void KXButtonCell::drawKnob(const Geometry& geometry, Canvas& canvas) const {
    canvas.setShadow(geometry.glow());
    canvas.fill(Oval{geometry.knob}, color::white);
}

} // namespace zarvil
