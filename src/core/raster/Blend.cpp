#include "raster/Blend.h"

#include <algorithm>
#include <cmath>

namespace zarvil::raster {

namespace {

constexpr Pixel everyOther = 0x0000FFFF0000FFFF;
constexpr Pixel halves = 0x0000800000008000;
constexpr int channels = 4;

/// Two channels at a time, each in 32 bits.
constexpr Pixel scaledPair(Pixel pair, Coverage factor) {
    const Pixel both = pair * factor + halves;
    return both + (both >> 16 & everyOther);
}

constexpr Pixel scaledPixel(Pixel pixel, Coverage factor) {
    return (scaledPair(pixel & everyOther, factor) >> 16 & everyOther) |
           (scaledPair(pixel >> 16 & everyOther, factor) & ~everyOther);
}

Pixel over(Pixel below, Pixel above) {
    return above + scaledPixel(below, static_cast<Coverage>(fullCoverage - alphaOf(above)));
}

/// Premultiplied: the larger of the two where both cover, each alone elsewhere.
Pixel lightened(Pixel below, Pixel above) {
    const Coverage aboveAlpha = alphaOf(above);
    const Coverage belowAlpha = alphaOf(below);
    const Pixel apart = scaledPixel(above, static_cast<Coverage>(fullCoverage - belowAlpha)) +
                        scaledPixel(below, static_cast<Coverage>(fullCoverage - aboveAlpha));
    const Pixel aboveHere = scaledPixel(above, belowAlpha);
    const Pixel belowHere = scaledPixel(below, aboveAlpha);
    Pixel result = 0;
    for (int shift = 0; shift < 16 * channels; shift += 16) {
        const Pixel larger =
            std::max(aboveHere >> shift & fullCoverage, belowHere >> shift & fullCoverage);
        // Three rounded summands may exceed full by a step.
        result |= std::min<Pixel>((apart >> shift & fullCoverage) + larger, fullCoverage) << shift;
    }
    return result;
}

void blendColor(Pixel* target, Pixel color, const Coverage* coverage, int count) {
    const bool isOpaque = alphaOf(color) == fullCoverage;
    for (int x = 0; x < count; ++x) {
        if (coverage[x] == 0)
            continue;
        if (isOpaque && coverage[x] == fullCoverage)
            target[x] = color;
        else
            target[x] = over(target[x], scaledPixel(color, coverage[x]));
    }
}

void blendPixels(Pixel* target, const Pixel* pixels, const Coverage* coverage, int count) {
    for (int x = 0; x < count; ++x) {
        const Pixel source =
            coverage[x] == fullCoverage ? pixels[x] : scaledPixel(pixels[x], coverage[x]);
        target[x] = target[x] == 0 ? source : over(target[x], source);
    }
}

} // namespace

Coverage share(double value) {
    if (!(value > 0))
        return 0;
    return static_cast<Coverage>(std::lround(std::min(value, 1.0) * fullCoverage));
}

Pixel scaled(Pixel pixel, Coverage factor) { return scaledPixel(pixel, factor); }

Pixel pixelOf(const Color& color) {
    const double alpha = color.alpha > 0 ? std::min(color.alpha, 1.0) : 0;
    const auto channel = [alpha](double value) {
        return Pixel{share(value > 0 ? std::min(value, 1.0) * alpha : 0)};
    };
    return channel(color.red) | channel(color.green) << 16 | channel(color.blue) << 32 |
           Pixel{share(alpha)} << 48;
}

void blendRow(Pixel* target, const Ink& ink, const Coverage* coverage, int count, BlendMode mode) {
    switch (mode) {
    case BlendMode::SourceOver:
        if (ink.pixels)
            blendPixels(target, ink.pixels, coverage, count);
        else
            blendColor(target, ink.color, coverage, count);
        return;
    case BlendMode::Lighten:
        for (int x = 0; x < count; ++x)
            target[x] = lightened(target[x],
                                  scaledPixel(ink.pixels ? ink.pixels[x] : ink.color, coverage[x]));
        return;
    case BlendMode::Clear:
        for (int x = 0; x < count; ++x)
            target[x] = scaledPixel(target[x], static_cast<Coverage>(fullCoverage - coverage[x]));
        return;
    }
}

} // namespace zarvil::raster
