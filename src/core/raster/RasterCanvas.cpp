#include "raster/RasterCanvas.h"

#include "raster/RasterImage.h"

#include <algorithm>
#include <cmath>

namespace zarvil {

using raster::Coverage;
using raster::fullCoverage;
using raster::Mask;
using raster::pixelsAround;

namespace {

bool isShown(const RasterView& view) {
    return std::isfinite(view.scale) && view.scale > 0 && std::isfinite(view.origin.x) &&
           std::isfinite(view.origin.y) && std::isfinite(view.size.height);
}

bool isWhole(double value) { return value == std::floor(value); }

bool isWhole(const Rect& rect) {
    return isWhole(rect.x) && isWhole(rect.y) && isWhole(rect.width) && isWhole(rect.height);
}

} // namespace

RasterCanvas::RasterCanvas(Bitmap& target, RasterMemory& memory, TextMask& text,
                           const RasterView& view)
    : bitmap_(target), memory_(memory), text_(text), view_(view) {
    memory_.states_.clear();
    memory_.layers_.clear();
    memory_.clipMaskCount_ = 0;
    const auto width = static_cast<std::size_t>(target.width());
    memory_.coverageRow_.resize(width);
    memory_.inkRow_.resize(width);
    startStates(isShown(view) ? target.bounds() : PixelRect{});
}

void RasterCanvas::startStates(const PixelRect& clip) {
    memory_.layers_.push_back({memory_.states_.size(), memory_.clipMaskCount_});
    memory_.states_.push_back({.shadow = {}, .clip = clip});
}

Bitmap& RasterCanvas::target() {
    const std::size_t layers = memory_.layers_.size() - 1;
    return layers == 0 ? bitmap_ : memory_.layerPixels_[layers - 1];
}

void RasterCanvas::saveState() { memory_.states_.push_back(state()); }

void RasterCanvas::restoreState() {
    if (memory_.states_.size() <= memory_.layers_.back().states + 1)
        return;
    memory_.states_.pop_back();
    memory_.clipMaskCount_ = std::max(state().clipMask, memory_.layers_.back().clipMasks);
}

void RasterCanvas::clip(const Path& path) {
    memory_.outline_.setFilled(path, view_);
    const auto extent = memory_.outline_.extent();
    state().clip = extent ? pixelsAround(*extent, state().clip) : PixelRect{};
    const PixelRect area = state().clip;
    if (area.isEmpty() || (std::holds_alternative<Rect>(path) && isWhole(*extent)))
        return;
    const std::size_t count = ++memory_.clipMaskCount_;
    if (memory_.clipMasks_.size() < count)
        memory_.clipMasks_.emplace_back();
    RasterMemory::ClipMask& mask = memory_.clipMasks_[count - 1];
    if (state().clipMask > 0 || !mask.isWhole || mask.mask.area != area || mask.view != view_ ||
        mask.path != path)
        makeClipMask(mask, path);
    state().clipMask = count;
}

/// From the outline of the path.
void RasterCanvas::makeClipMask(RasterMemory::ClipMask& made, const Path& path) {
    const PixelRect area = state().clip;
    made.isWhole = state().clipMask == 0;
    made.path = path;
    made.view = view_;
    made.mask.reset(area);
    memory_.area_.cover(memory_.outline_, area);
    for (int y = 0; y < area.height; ++y) {
        Coverage* row = made.mask.row(area.y + y);
        memory_.area_.row(y, row);
        if (made.isWhole)
            continue;
        const Mask& outer = memory_.clipMasks_[state().clipMask - 1].mask;
        const Coverage* outerRow = outer.row(area.y + y) + (area.x - outer.area.x);
        std::transform(row, row + area.width, outerRow, row, raster::product);
    }
}

void RasterCanvas::setShadow(const Shadow& shadow) { state().shadow = shadow; }

void RasterCanvas::setBlendMode(BlendMode mode) { state().blendMode = mode; }

void RasterCanvas::beginTransparencyLayer() {
    const std::size_t layers = memory_.layers_.size();
    if (layers > maxLayers) {
        ++flattenedLayers_;
        saveState();
        state().shadow.reset();
        state().blendMode = BlendMode::SourceOver;
        return;
    }
    if (memory_.layerPixels_.size() < layers)
        memory_.layerPixels_.emplace_back();
    memory_.layerPixels_[layers - 1].reset(bitmap_.width(), bitmap_.height());
    startStates(memory_.states_.front().clip);
}

void RasterCanvas::endTransparencyLayer() {
    if (flattenedLayers_ > 0) {
        --flattenedLayers_;
        restoreState();
        return;
    }
    if (memory_.layers_.size() < 2)
        return;
    memory_.states_.resize(memory_.layers_.back().states);
    memory_.clipMaskCount_ = memory_.layers_.back().clipMasks;
    memory_.layers_.pop_back();
    const Bitmap& layer = memory_.layerPixels_[memory_.layers_.size() - 1];
    castLayerShadow(layer);
    const PixelRect area = state().clip;
    for (int y = area.y; y < area.bottom(); ++y) {
        std::fill_n(coverage(), area.width, fullCoverage);
        blendCovered(area.x, y, area.width, {.pixels = layer.row(y) + area.x});
    }
}

void RasterCanvas::fill(const Path& path, const Color& color) {
    memory_.outline_.setFilled(path, view_);
    drawOutline(path, 0, {.color = raster::pixelOf(color)});
}

void RasterCanvas::stroke(const Path& path, const Color& color, double width) {
    memory_.outline_.setStroked(path, width, view_);
    drawOutline(path, width, {.color = raster::pixelOf(color)});
}

void RasterCanvas::fill(const Path& path, const Gradient& gradient, double angle) {
    memory_.outline_.setFilled(path, view_);
    const GradientAxis axis = gradientAxis(boundsOf(path), angle);
    memory_.gradient_.set(gradient, view_.toPixels(axis.start), view_.toPixels(axis.end));
    drawOutline(path, 0, {.isGradient = true});
}

void RasterCanvas::drawOutline(const Path& path, double strokeWidth, const Paint& paint) {
    const auto extent = memory_.outline_.extent();
    if (!extent || state().clip.isEmpty())
        return;
    if (state().shadow)
        castShadow(path, strokeWidth, *extent, paint);
    const PixelRect region = pixelsAround(*extent, state().clip);
    const bool isFull = std::holds_alternative<Rect>(path) && strokeWidth == 0 && isWhole(*extent);
    if (!isFull)
        memory_.area_.cover(memory_.outline_, region);
    raster::Ink ink{.color = paint.color};
    if (paint.isGradient)
        ink.pixels = memory_.inkRow_.data();
    for (int y = 0; y < region.height; ++y) {
        if (isFull)
            std::fill_n(coverage(), region.width, fullCoverage);
        else
            memory_.area_.row(y, coverage());
        if (paint.isGradient)
            memory_.gradient_.row(region.x, region.y + y, region.width, memory_.inkRow_.data());
        blendCovered(region.x, region.y + y, region.width, ink);
    }
}

void RasterCanvas::blendCovered(int x, int y, int count, const raster::Ink& ink) {
    if (state().clipMask > 0) {
        const Mask& mask = memory_.clipMasks_[state().clipMask - 1].mask;
        const Coverage* clipped = mask.row(y) + (x - mask.area.x);
        std::transform(coverage(), coverage() + count, clipped, coverage(), raster::product);
    }
    raster::blendRow(target().row(y) + x, ink, coverage(), count, state().blendMode);
}

void RasterCanvas::drawMask(const Mask& mask, int dx, int dy, Pixel color) {
    const PixelRect area = mask.area.translated(dx, dy).intersected(state().clip);
    for (int y = area.y; y < area.bottom(); ++y) {
        std::copy_n(mask.row(y - dy) + (area.x - dx - mask.area.x), area.width, coverage());
        blendCovered(area.x, y, area.width, {.color = color});
    }
}

void RasterCanvas::drawImage(const Image& image, const Rect& rect, double fraction) {
    const auto* own = dynamic_cast<const RasterImage*>(&image);
    memory_.outline_.setFilled(rect, view_);
    const auto extent = memory_.outline_.extent();
    const Coverage part = raster::share(fraction);
    if (!own || !extent || state().clip.isEmpty() || part == 0)
        return;
    const Bitmap& pixels = own->pixels(view_.scale, text_);
    const PixelRect region = pixelsAround(*extent, state().clip);
    if (region.isEmpty())
        return;
    const bool fits =
        isWhole(*extent) && extent->width == pixels.width() && extent->height == pixels.height();
    if (!fits) {
        drawScaledImage(pixels, *extent, region, part);
        return;
    }
    const int dx = static_cast<int>(extent->x);
    const int dy = static_cast<int>(extent->y);
    for (int y = region.y; y < region.bottom(); ++y) {
        std::fill_n(coverage(), region.width, part);
        blendCovered(region.x, y, region.width, {.pixels = pixels.row(y - dy) + (region.x - dx)});
    }
}

namespace {

/// Between the four nearest pixels; beyond the edges the outermost go on.
Pixel sampled(const Bitmap& pixels, double x, double y) {
    const double column = std::clamp(x - 0.5, 0.0, pixels.width() - 1.0);
    const double line = std::clamp(y - 0.5, 0.0, pixels.height() - 1.0);
    const int left = static_cast<int>(column);
    const int top = static_cast<int>(line);
    const int right = std::min(left + 1, pixels.width() - 1);
    const int bottom = std::min(top + 1, pixels.height() - 1);
    const Coverage toRight = raster::share(column - left);
    const Coverage toBottom = raster::share(line - top);
    const auto mixed = [](Pixel first, Pixel second, Coverage toSecond) {
        return raster::scaled(first, static_cast<Coverage>(fullCoverage - toSecond)) +
               raster::scaled(second, toSecond);
    };
    return mixed(mixed(pixels.row(top)[left], pixels.row(top)[right], toRight),
                 mixed(pixels.row(bottom)[left], pixels.row(bottom)[right], toRight), toBottom);
}

} // namespace

void RasterCanvas::drawScaledImage(const Bitmap& pixels, const Rect& place, const PixelRect& region,
                                   Coverage fraction) {
    if (pixels.width() == 0 || pixels.height() == 0)
        return;
    const double columns = pixels.width() / place.width;
    const double lines = pixels.height() / place.height;
    memory_.area_.cover(memory_.outline_, region);
    for (int y = 0; y < region.height; ++y) {
        memory_.area_.row(y, coverage());
        for (int x = 0; x < region.width; ++x) {
            coverage()[x] = raster::product(coverage()[x], fraction);
            memory_.inkRow_[static_cast<std::size_t>(x)] =
                sampled(pixels, (region.x + x + 0.5 - place.x) * columns,
                        (region.y + y + 0.5 - place.y) * lines);
        }
        blendCovered(region.x, region.y + y, region.width, {.pixels = memory_.inkRow_.data()});
    }
}

} // namespace zarvil
