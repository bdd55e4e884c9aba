#pragma once

#include "platform/MouseParameters.h"

namespace zarvil {

/// The desktop's double-click interval and drag distance.
class QtMouseParameters final : public MouseParameters {
public:
    [[nodiscard]] std::optional<StickyClick> stickyClick() const override;
};

} // namespace zarvil
