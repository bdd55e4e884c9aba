#include "raster/Bitmap.h"

#include <algorithm>
#include <cstring>

namespace zarvil {

namespace {

constexpr Pixel everyOther = 0x0000FFFF0000FFFF;
constexpr Pixel lowBytes = 0x000000FF000000FF;

/// Two channels at a time to the nearest of 256 levels each, exactly: all 16 bits count.
constexpr Pixel toBytes(Pixel pair) {
    constexpr Pixel half = 0x0000807F0000807F;
    return (pair * 255 + half) >> 16 & lowBytes;
}

constexpr std::uint32_t argbWord(Pixel pixel) {
    const Pixel redBlue = toBytes(pixel & everyOther);
    const Pixel greenAlpha = toBytes(pixel >> 16 & everyOther);
    return static_cast<std::uint32_t>((redBlue & 0xFF) << 16 | redBlue >> 32 |
                                      (greenAlpha & 0xFF) << 8 | greenAlpha >> 32 << 24);
}

void copyRow(const Pixel* pixels, int count, std::uint8_t* bytes, PixelLayout layout) {
    if (layout == PixelLayout::Argb32Words) {
        for (int x = 0; x < count; ++x, bytes += 4) {
            const std::uint32_t word = argbWord(pixels[x]);
            std::memcpy(bytes, &word, sizeof word);
        }
        return;
    }
    for (int x = 0; x < count; ++x, bytes += 4) {
        const Pixel redBlue = toBytes(pixels[x] & everyOther);
        const Pixel greenAlpha = toBytes(pixels[x] >> 16 & everyOther);
        bytes[0] = static_cast<std::uint8_t>(redBlue);
        bytes[1] = static_cast<std::uint8_t>(greenAlpha);
        bytes[2] = static_cast<std::uint8_t>(redBlue >> 32);
        bytes[3] = static_cast<std::uint8_t>(greenAlpha >> 32);
    }
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
    for (int y = 0; y < height_; ++y, bytes += bytesPerRow)
        copyRow(row(y), width_, bytes, layout);
}

} // namespace zarvil
