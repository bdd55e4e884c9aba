#pragma once

#include <cstdint>

namespace zarvil {

enum class CursorShape : std::uint8_t { Arrow, PointingHand };

/// The mouse pointer's look.
class Cursor {
public:
    Cursor() = default;
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;
    virtual ~Cursor() = default;

    virtual void set(CursorShape shape) = 0;
};

} // namespace zarvil
