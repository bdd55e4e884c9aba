#include "raster/Bitmap.h"

#include <algorithm>
#include <cstring>

namespace zarvil {

namespace {

constexpr int redShift = 0;
constexpr int greenShift = 16;
constexpr int blueShift = 32;
constexpr int alphaShift = 48;

/// The nearest of 256 levels.
std::uint32_t byteOf(Pixel pixel, int shift) {
    const auto level = static_cast<std::uint32_t>(pixel >> shift & 0xFFFF);
    return (level * 255 + 32767) / 65535;
}

std::uint32_t argb(Pixel pixel) {
    return byteOf(pixel, alphaShift) << 24 | byteOf(pixel, redShift) << 16 |
           byteOf(pixel, greenShift) << 8 | byteOf(pixel, blueShift);
}

} // namespace

PixelRect PixelRect::intersected(const PixelRect& other) const {
    const int left = std::max(x, other.x);
    const int top = std::max(y, other.y);
    return {left, top, std::max(0, std::min(right(), other.right()) - left),
            std::max(0, std::min(bottom(), other.bottom()) - top)};
}

void Bitmap::reset(int width, int height) {
    width_ = std::clamp(width, 0, maxSide);
    height_ = std::clamp(height, 0, maxSide);
    if (width_ > 0)
        height_ = std::min(height_, static_cast<int>(maxPixels) / width_);
    pixels_.assign(offset(height_), 0);
}

void Bitmap::copyTo(std::uint8_t* bytes, std::size_t bytesPerRow, PixelLayout layout) const {
    for (int y = 0; y < height_; ++y, bytes += bytesPerRow) {
        const Pixel* pixels = row(y);
        std::uint8_t* target = bytes;
        for (int x = 0; x < width_; ++x, target += 4) {
            const Pixel pixel = pixels[x];
            if (layout == PixelLayout::Argb32Words) {
                const std::uint32_t word = argb(pixel);
                std::memcpy(target, &word, sizeof word);
            } else {
                target[0] = static_cast<std::uint8_t>(byteOf(pixel, redShift));
                target[1] = static_cast<std::uint8_t>(byteOf(pixel, greenShift));
                target[2] = static_cast<std::uint8_t>(byteOf(pixel, blueShift));
                target[3] = static_cast<std::uint8_t>(byteOf(pixel, alphaShift));
            }
        }
    }
}

} // namespace zarvil
