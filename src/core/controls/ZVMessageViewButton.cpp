#include "controls/ZVMessageViewButton.h"

#include "controls/Bevel.h"

namespace zarvil {

namespace {

/// The first colors lie at the top: y grows downwards here, so the angle differs from the panel's
/// on purpose.
constexpr Bevel normalBevel{4, 90, 0.7F, 0.4F};
constexpr Bevel pressedBevel{4, 90, 0.1F, 0.3F};
constexpr double titleInset = 5;

} // namespace

void ZVMessageViewButton::drawInteriorWithFrame(const Rect& frame, View* /*controlView*/,
                                                Canvas& canvas) const {
    canvas.saveState();
    canvas.setBlendMode(BlendMode::Clear);
    canvas.fill(frame, color::clear);
    canvas.restoreState();
    drawBevel(isHighlighted() ? pressedBevel : normalBevel, frame, canvas);
    canvas.drawText(title(),
                    {frame.x, frame.y + titleInset, frame.width, frame.height - 2 * titleInset},
                    {fontSize_, color::white, TextAlignment::Centered});
}

} // namespace zarvil
