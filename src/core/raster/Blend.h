#pragma once

#include "platform/Canvas.h"
#include "raster/Bitmap.h"

#include <cstdint>

/// Arithmetic on pixels and on coverage, which counts from 0 to 65535.
namespace zarvil::raster {

using Coverage = std::uint16_t;
inline constexpr Coverage fullCoverage = 65535;

/// From 0 to 1, no less and no more.
[[nodiscard]] inline Coverage coverageOf(float fraction) {
    // Never negative, so that this rounds, in a fraction of a library call's time.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return static_cast<Coverage>(fraction * float{fullCoverage} + 0.5F);
}

/// The rounded product of two shares.
[[nodiscard]] constexpr Coverage product(Coverage a, Coverage b) {
    const std::uint32_t both = std::uint32_t{a} * b + 0x8000;
    return static_cast<Coverage>((both + (both >> 16)) >> 16);
}

/// A share from 0 to 1; what is outside, or no number, is limited to that.
[[nodiscard]] Coverage share(double value);

[[nodiscard]] constexpr Coverage alphaOf(Pixel pixel) { return static_cast<Coverage>(pixel >> 48); }

/// Every channel of the pixel times a share.
[[nodiscard]] Pixel scaled(Pixel pixel, Coverage factor);

/// A color as a pixel.
[[nodiscard]] Pixel pixelOf(const Color& color);

/// What is drawn in a row: one color, or a pixel each.
struct Ink {
    Pixel color = 0;
    const Pixel* pixels = nullptr;
};

/// Draws ink on a row of pixels as far as it is covered.
void blendRow(Pixel* target, const Ink& ink, const Coverage* coverage, int count, BlendMode mode);

} // namespace zarvil::raster
