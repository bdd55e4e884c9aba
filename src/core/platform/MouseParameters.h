#pragma once

#include "interface/Geometry.h"

#include <optional>

namespace zarvil {

/// How long and how far a press may last and move and still count as a click.
struct StickyClick {
    double timeout = 0; ///< seconds
    Size bias;          ///< points
};

/// The desktop's mouse settings.
class MouseParameters {
public:
    MouseParameters() = default;
    MouseParameters(const MouseParameters&) = delete;
    MouseParameters& operator=(const MouseParameters&) = delete;
    virtual ~MouseParameters() = default;

    /// Nothing when the desktop does not tell.
    [[nodiscard]] virtual std::optional<StickyClick> stickyClick() const = 0;
};

} // namespace zarvil
