#pragma once

#include "platform/Canvas.h"

namespace zarvil {

/// Numbers of a bevelled grey surface: a near-black rim around a lighter ring around a face.
struct Bevel {
    double rimRadius; ///< the ring's is one point smaller, the face's two
    /// Leads from the first to the second color of ring and face.
    double angle;
    float faceStart; ///< white values
    float faceEnd;
};

void drawBevel(const Bevel& bevel, const Rect& rect, Canvas& canvas);

} // namespace zarvil
