#pragma once

#include "raster/RasterCanvas.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace zarvil {

/// Blocks for letters: text measures 8 points a byte and its size in height.
class BlockText final : public TextMask {
public:
    Size sizeOfText(std::string_view text, double fontSize) const override {
        return {8.0 * static_cast<double>(text.size()), fontSize};
    }
    /// All of the buffer, so that what is cut off shows.
    void draw(const MaskedText& text, const MaskBuffer& buffer) override {
        boxes.push_back(text.box);
        std::fill_n(buffer.bytes, buffer.bytesPerRow * static_cast<std::size_t>(buffer.height),
                    std::uint8_t{255});
    }
    std::vector<Rect> boxes;
};

/// What a drawing leaves on transparent pixels, seen pixel by pixel.
class Drawn {
public:
    Drawn(Size size, double scale, Orientation orientation,
          const std::function<void(Canvas&)>& drawing)
        : Drawn(RasterView{size, orientation, scale, {}}, drawing) {}
    Drawn(const RasterView& view, const std::function<void(Canvas&)>& drawing)
        : bitmap(static_cast<int>(view.size.width * view.scale),
                 static_cast<int>(view.size.height * view.scale)) {
        RasterMemory memory;
        RasterCanvas canvas(bitmap, memory, text, view);
        drawing(canvas);
    }

    double alpha(int x, int y) const { return channel(x, y, 48); }
    /// As the color was before the alpha.
    double red(int x, int y) const { return channel(x, y, 0) / alpha(x, y); }
    double covered() const {
        double sum = 0;
        for (int y = 0; y < bitmap.height(); ++y)
            for (int x = 0; x < bitmap.width(); ++x)
                sum += alpha(x, y);
        return sum;
    }

    BlockText text;
    Bitmap bitmap;

private:
    double channel(int x, int y, int shift) const {
        return static_cast<double>(bitmap.row(y)[x] >> shift & 0xFFFF) / 65535;
    }
};

/// A tenth of one step of eight bits.
inline constexpr double exact = 0.1 / 255;

} // namespace zarvil
