#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zarvil {

/// A premultiplied colour of 16 bits a channel: red in the lowest bits, then green, blue, alpha.
using Pixel = std::uint64_t;

/// Whole pixels; y grows downwards.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }
    [[nodiscard]] int right() const { return x + width; }
    [[nodiscard]] int bottom() const { return y + height; }
    [[nodiscard]] PixelRect intersected(const PixelRect& other) const;
    [[nodiscard]] PixelRect outset(int distance) const {
        return {x - distance, y - distance, width + 2 * distance, height + 2 * distance};
    }
    [[nodiscard]] PixelRect translated(int dx, int dy) const {
        return {x + dx, y + dy, width, height};
    }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// How a toolkit wants its pixels: premultiplied, 8 bits a channel.
enum class PixelLayout : std::uint8_t {
    RgbaBytes,  ///< bytes red, green, blue, alpha
    Argb32Words ///< words 0xAARRGGBB in the machine's byte order
};

/// Pixels that a canvas draws on, row by row from the top. Deep, so that nothing that a toolkit
/// can show is rounded away while layers are put together.
class Bitmap {
public:
    /// Neither side grows beyond this, nor all pixels beyond `maxPixels`; what exceeds it is cut
    /// off at the right and the bottom.
    static constexpr int maxSide = 1 << 14;
    static constexpr std::size_t maxPixels = std::size_t{1} << 24;

    Bitmap() = default;
    Bitmap(int width, int height) { reset(width, height); }

    /// Becomes transparent pixels of this size. Memory is kept for a later one.
    void reset(int width, int height);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] PixelRect bounds() const { return {0, 0, width_, height_}; }
    [[nodiscard]] Pixel* row(int y) { return pixels_.data() + offset(y); }
    [[nodiscard]] const Pixel* row(int y) const { return pixels_.data() + offset(y); }

    /// Writes all pixels, four bytes each, rounded to the nearest level. `bytes` holds `height()`
    /// rows of `bytesPerRow`, at least four times the width.
    void copyTo(std::uint8_t* bytes, std::size_t bytesPerRow, PixelLayout layout) const;

private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Pixel> pixels_;
};

} // namespace zarvil
