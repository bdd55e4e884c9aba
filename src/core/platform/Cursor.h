#pragma once

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

} // namespace zarvil
