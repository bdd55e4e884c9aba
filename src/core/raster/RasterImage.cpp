#include "raster/RasterImage.h"

#include "raster/RasterCanvas.h"

#include <algorithm>
#include <cmath>

namespace zarvil {

namespace {

int pixelsOf(double points, double scale) {
    const double pixels = std::ceil(points * scale);
    return pixels > 0 ? static_cast<int>(std::min<double>(pixels, Bitmap::maxSide)) : 0;
}

} // namespace

const Bitmap& RasterImage::pixels(double scale, TextMask& text) const {
    if (scale == scale_)
        return pixels_;
    scale_ = scale;
    pixels_.reset(pixelsOf(size_.width, scale), pixelsOf(size_.height, scale));
    RasterMemory memory;
    RasterCanvas canvas(pixels_, memory, text, {size_, Orientation::YUp, scale, {}});
    drawing_(canvas);
    return pixels_;
}

} // namespace zarvil
