#include "raster/RasterCanvas.h"

#include <algorithm>
#include <cmath>

namespace zarvil {

using raster::Coverage;
using raster::pixelsAround;

namespace {

/// In pixels; nobody reads larger letters.
constexpr double largestFont = 1 << 14;

bool isDrawn(const TextStyle& style, double scale, const Rect& box) {
    return style.fontSize > 0 && style.fontSize * scale <= largestFont && box.width > 0 &&
           box.height > 0 && std::isfinite(box.x) && std::isfinite(box.y) &&
           std::isfinite(box.width) && std::isfinite(box.height);
}

} // namespace

Size RasterCanvas::sizeOfText(std::string_view text, const TextStyle& style) const {
    if (!(style.fontSize > 0) || !std::isfinite(style.fontSize))
        return {};
    return text_.sizeOfText(text, style.fontSize);
}

void RasterCanvas::drawText(std::string_view text, const Rect& rect, const TextStyle& style) {
    const Rect box = view_.toPixels(rect);
    if (text.empty() || !(rect.width > 0 && rect.height > 0) || !isDrawn(style, view_.scale, box))
        return;
    saveState();
    state().blendMode = BlendMode::SourceOver;
    const bool fits = sizeOfText(text, style).width <= rect.width;
    // Letters may reach a little beyond the box that they measure.
    const double overhang = fits ? style.fontSize * view_.scale : 0;
    if (!fits)
        clip(rect);
    const PixelRect region = pixelsAround(
        {box.x - overhang, box.y - overhang, box.width + 2 * overhang, box.height + 2 * overhang},
        state().clip);
    if (!region.isEmpty()) {
        const auto bytesPerRow = (static_cast<std::size_t>(region.width) + 3) / 4 * 4;
        memory_.text_.assign(bytesPerRow * static_cast<std::size_t>(region.height), 0);
        text_.draw({text,
                    style.fontSize,
                    view_.scale,
                    {box.x - region.x, box.y - region.y, box.width, box.height},
                    style.alignment,
                    !fits},
                   {region.width, region.height, bytesPerRow, memory_.text_.data()});
        const raster::Ink ink{.color = raster::pixelOf(style.color)};
        for (int y = 0; y < region.height; ++y) {
            const std::uint8_t* bytes =
                memory_.text_.data() + static_cast<std::size_t>(y) * bytesPerRow;
            std::transform(bytes, bytes + region.width, coverage(),
                           [](std::uint8_t byte) { return static_cast<Coverage>(byte * 257); });
            blendCovered(region.x, region.y + y, region.width, ink);
        }
    }
    restoreState();
}

} // namespace zarvil
