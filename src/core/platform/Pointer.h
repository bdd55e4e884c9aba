#pragma once

#include "interface/Geometry.h"
#include "protocol/NonCopyable.h"

#include <cstdint>

namespace zarvil {

enum class CursorShape : std::uint8_t { Arrow, PointingHand };

/// The mouse pointer's look.
class Cursor : NonCopyable {
public:
    virtual ~Cursor() = default;

    virtual void set(CursorShape shape) = 0;
};

/// How long and how far a press may last and move and still count as a click.
struct StickyClick {
    double timeout = 0; ///< seconds
    Size bias;          ///< points
};

} // namespace zarvil
