#pragma once

#include "interface/Geometry.h"

namespace zarvil {

/// How long and how far a press may last and move and still count as a click.
struct StickyClick {
    double timeout = 0; ///< seconds
    Size bias;          ///< points
};

} // namespace zarvil
