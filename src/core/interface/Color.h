#pragma once

namespace zarvil {

/// A device color, each component from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    [[nodiscard]] static constexpr Color gray(double white, double alpha = 1) {
        return {white, white, white, alpha};
    }
    friend bool operator==(const Color&, const Color&) = default;
};

namespace color {

inline constexpr Color white = Color::gray(1);
inline constexpr Color clear = Color::gray(0, 0);
inline constexpr Color blue{0, 0, 1, 1};

} // namespace color

} // namespace zarvil
