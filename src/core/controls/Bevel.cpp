#include "controls/Bevel.h"

namespace zarvil {

namespace {

constexpr float rimWhite = 0.1F;
constexpr float ringStart = 0.7F;
constexpr float ringEnd = 0.4F;

Color gray(float white) { return Color::gray(static_cast<double>(white)); }

Path inset(const Rect& rect, double distance, double radius) {
    return RoundedRect{{rect.x + distance, rect.y + distance, rect.width - 2 * distance,
                        rect.height - 2 * distance},
                       {radius, radius}};
}

} // namespace

void drawBevel(const Bevel& bevel, const Rect& rect, Canvas& canvas) {
    // Only the rim is moved: half a point to the right, and to where y grows.
    canvas.fill(translated(inset(rect, 0, bevel.rimRadius), 0.5, 0.5), gray(rimWhite));
    canvas.fill(inset(rect, 1, bevel.rimRadius - 1),
                Gradient::evenlySpaced({gray(ringStart), gray(ringEnd)}), bevel.angle);
    canvas.fill(inset(rect, 2, bevel.rimRadius - 2),
                Gradient::evenlySpaced({gray(bevel.faceStart), gray(bevel.faceEnd)}), bevel.angle);
}

} // namespace zarvil
