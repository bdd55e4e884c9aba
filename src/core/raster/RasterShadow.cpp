#include "raster/RasterCanvas.h"

#include <algorithm>
#include <cmath>

namespace zarvil {

using raster::Coverage;
using raster::fullCoverage;
using raster::gaussianReach;
using raster::Mask;
using raster::pixelsAround;

namespace {

/// Steps of a pixel in which two places of a shape count as different.
constexpr double subpixels = 4096;
/// Shapes that stand further away throw no shadow that is kept.
constexpr double farAway = 1 << 24;

int wholePixels(double value) {
    constexpr double most = 1 << 20;
    return static_cast<int>(std::lround(std::isfinite(value) ? std::clamp(value, -most, most) : 0));
}

struct Corners {
    Size operator()(const Rect& /*rect*/) const { return {}; }
    Size operator()(const RoundedRect& rounded) const { return rounded.radii; }
    Size operator()(const Oval& /*oval*/) const { return {}; }
    /// Tells the two diagonals apart.
    Size operator()(const Line& line) const {
        return {line.to.x - line.from.x, line.to.y - line.from.y};
    }
};

bool isKept(const Rect& extent, int reach) {
    const double pixels = (extent.width + 2 * reach + 2) * (extent.height + 2 * reach + 2);
    return pixels * sizeof(Coverage) <= static_cast<double>(raster::ShadowCache::capacity) &&
           std::abs(extent.x) < farAway && std::abs(extent.y) < farAway;
}

} // namespace

double RasterCanvas::shadowDeviation() {
    const double deviation = state().shadow->blurRadius * 0.5 * view_.scale;
    return deviation > 0 ? std::min(deviation, raster::GaussianBlur::maxDeviation) : 0;
}

PixelRect RasterCanvas::shadowOffset() {
    const Size& offset = state().shadow->offset;
    return {.x = wholePixels(offset.width * view_.scale),
            .y = -wholePixels(offset.height * view_.scale)};
}

void RasterCanvas::castShadow(const Path& path, double strokeWidth, const Rect& extent,
                              const Paint& paint) {
    const Pixel color = raster::pixelOf(state().shadow->color);
    const auto [dx, dy, noWidth, noHeight] = shadowOffset();
    const int reach = gaussianReach(shadowDeviation());
    const PixelRect wanted = state().clip.translated(-dx, -dy);
    const PixelRect near = pixelsAround(extent, wanted.outset(reach));
    if (near.isEmpty())
        return;
    const bool isEven = !paint.isGradient || memory_.gradient_.isOpaque();
    if (!isEven || !isKept(extent, reach)) {
        makeShadow(memory_.shadowMask_, near, wanted, paint);
        drawMask(memory_.shadowMask_, dx, dy, color);
        return;
    }
    const double left = std::floor(extent.x);
    const double top = std::floor(extent.y);
    const Size corners = std::visit(Corners{}, path);
    const raster::ShadowKey key{static_cast<double>(path.index()),
                                extent.width,
                                extent.height,
                                corners.width * view_.scale,
                                corners.height * (isFlipped() ? view_.scale : -view_.scale),
                                strokeWidth * view_.scale,
                                std::round((extent.x - left) * subpixels),
                                std::round((extent.y - top) * subpixels),
                                shadowDeviation()};
    const int x = static_cast<int>(left);
    const int y = static_cast<int>(top);
    const Mask* kept = memory_.shadows_.find(key);
    if (!kept) {
        Mask made;
        const PixelRect whole{x, y, static_cast<int>(std::ceil(extent.x - left + extent.width)),
                              static_cast<int>(std::ceil(extent.y - top + extent.height))};
        makeShadow(made, whole, whole.outset(reach), {.color = Pixel{fullCoverage} << 48});
        made.area = made.area.translated(-x, -y);
        kept = &memory_.shadows_.insert(key, std::move(made));
    }
    const Coverage alpha = paint.isGradient ? fullCoverage : raster::alphaOf(paint.color);
    drawMask(*kept, x + dx, y + dy, raster::scaled(color, alpha));
}

void RasterCanvas::resetPlane(const PixelRect& region) {
    const int reach = gaussianReach(shadowDeviation());
    memory_.shadowPlane_.reset(region.width + 2 * reach, region.height + 2 * reach);
}

float* RasterCanvas::planeRow(int y) {
    const int reach = gaussianReach(shadowDeviation());
    return memory_.shadowPlane_.row(y + reach) + reach;
}

void RasterCanvas::makeShadow(Mask& shadow, const PixelRect& region, const PixelRect& wanted,
                              const Paint& paint) {
    resetPlane(region);
    memory_.area_.cover(memory_.outline_, region);
    std::vector<Coverage>& row = memory_.coverageRow_;
    const auto width = static_cast<std::size_t>(region.width);
    row.resize(std::max(row.size(), width));
    if (paint.isGradient)
        memory_.inkRow_.resize(std::max(memory_.inkRow_.size(), width));
    for (int y = 0; y < region.height; ++y) {
        memory_.area_.row(y, row.data());
        if (paint.isGradient)
            memory_.gradient_.row(region.x, region.y + y, region.width, memory_.inkRow_.data());
        float* plane = planeRow(y);
        for (std::size_t x = 0; x < width; ++x) {
            const Pixel ink = paint.isGradient ? memory_.inkRow_[x] : paint.color;
            plane[x] = static_cast<float>(raster::product(row[x], raster::alphaOf(ink))) /
                       float{fullCoverage};
        }
    }
    blurInto(shadow, region, wanted);
}

void RasterCanvas::castLayerShadow(const Bitmap& layer) {
    if (!state().shadow || state().clip.isEmpty())
        return;
    const PixelRect region = layer.bounds();
    const PixelRect offset = shadowOffset();
    resetPlane(region);
    for (int y = 0; y < region.height; ++y)
        std::transform(layer.row(y), layer.row(y) + region.width, planeRow(y), [](Pixel pixel) {
            return static_cast<float>(raster::alphaOf(pixel)) / float{fullCoverage};
        });
    blurInto(memory_.shadowMask_, region, state().clip.translated(-offset.x, -offset.y));
    drawMask(memory_.shadowMask_, offset.x, offset.y, raster::pixelOf(state().shadow->color));
}

void RasterCanvas::blurInto(Mask& shadow, const PixelRect& region, const PixelRect& wanted) {
    const PixelRect plane = region.outset(gaussianReach(shadowDeviation()));
    const PixelRect window = wanted.intersected(plane);
    memory_.blur_.apply(memory_.shadowPlane_, shadowDeviation(),
                        window.translated(-plane.x, -plane.y));
    shadow.reset(window);
    for (int y = window.y; y < window.bottom(); ++y) {
        const float* values = memory_.shadowPlane_.row(y - plane.y) + (window.x - plane.x);
        std::transform(values, values + window.width, shadow.row(y), [](float value) {
            return raster::coverageOf(std::clamp(value, 0.0F, 1.0F));
        });
    }
}

} // namespace zarvil
