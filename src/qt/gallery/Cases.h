#pragma once

#include "platform/Canvas.h"
#include "raster/Outline.h"

#include <functional>
#include <string>
#include <vector>

namespace zarvil::gallery {

/// One picture of the gallery.
struct Case {
    std::string name;
    Size viewSize; ///< in points
    Orientation orientation;
    std::function<void(Canvas&)> draw;
};

[[nodiscard]] std::vector<Case> allCases();

} // namespace zarvil::gallery
