#include "controls/ZVCollectionNoteView.h"

namespace zarvil {

namespace {

constexpr double cornerRadius = 8;
constexpr double outlineWidth = 1;
/// The pale color lies at the top: y grows upwards.
constexpr double cardAngle = -90;
constexpr Shadow cardShadow{Color::gray(0, 0.5), 3, {0, 0}};

constexpr Color rgb(float red, float green, float blue) {
    return {static_cast<double>(red), static_cast<double>(green), static_cast<double>(blue), 1};
}

constexpr Color outlineColor = rgb(0.8F, 0.6F, 0);

const Gradient& cardGradient() {
    static const Gradient gradient{
        {{0, rgb(1, 0.95F, 0.84F)}, {0.5, rgb(1, 0.9F, 0)}, {1, rgb(0.98F, 0.85F, 0.32F)}}};
    return gradient;
}

/// Leaves room for the shadow, most of it at the top.
Rect cardRect(const Rect& bounds) {
    return {bounds.x + 3, bounds.y + 3, bounds.width - 5.5, bounds.height - 10.5};
}

} // namespace

void ZVCollectionNoteView::drawRect(Canvas& canvas) const {
    const Path card = RoundedRect{cardRect(bounds()), {cornerRadius, cornerRadius}};
    canvas.saveState();
    // It stays set throughout: fill and strokes all cast it.
    canvas.setShadow(cardShadow);
    canvas.stroke(card, outlineColor, outlineWidth);
    canvas.fill(card, cardGradient(), cardAngle);
    // Once more, so that the outline lies over the gradient's edge.
    canvas.stroke(card, outlineColor, outlineWidth);
    canvas.restoreState();
}

} // namespace zarvil
