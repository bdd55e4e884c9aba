#pragma once

#include "platform/Canvas.h"
#include "raster/AreaCoverage.h"
#include "raster/Bitmap.h"
#include "raster/GaussianBlur.h"
#include "raster/LinearGradient.h"
#include "raster/Mask.h"
#include "raster/Outline.h"
#include "raster/TextMask.h"

#include <optional>
#include <vector>

namespace zarvil {

/// What a canvas needs beside its bitmap: layers, masks, shadows. Kept from one drawing to the
/// next it saves making them anew. Serves one canvas at a time.
class RasterMemory {
private:
    friend class RasterCanvas;

    struct State {
        std::optional<Shadow> shadow;
        BlendMode blendMode = BlendMode::SourceOver;
        PixelRect clip;           ///< nothing is drawn outside
        std::size_t clipMask = 0; ///< how far inside; counts from one, none is zero
    };
    /// A clip's coverage. Kept, as a control clips to the same shape in each of its drawings.
    struct ClipMask {
        raster::Mask mask;
        Path path;
        RasterView view;
        bool isWhole = false; ///< whether it is the path's alone, not cut by another
    };
    /// Where a layer begins in the stacks.
    struct Layer {
        std::size_t states;
        std::size_t clipMasks;
    };

    std::vector<State> states_;
    std::vector<Layer> layers_;
    std::vector<Bitmap> layerPixels_; ///< as many as ever were needed at once
    std::vector<ClipMask> clipMasks_;
    std::size_t clipMaskCount_ = 0;

    raster::Outline outline_;
    raster::AreaCoverage area_;
    raster::LinearGradient gradient_;
    std::vector<raster::Coverage> coverageRow_;
    std::vector<Pixel> inkRow_;
    std::vector<std::uint8_t> text_;

    raster::ShadowCache shadows_;
    raster::GaussianBlur blur_;
    raster::Plane shadowPlane_;
    raster::Mask shadowMask_;
};

/// Draws in software, the same on every system. Coverage is computed from areas; shapes stand
/// where their numbers say, between pixels too. What has no finite place, or no extent, is left
/// out. Shadows are moved by whole pixels.
class RasterCanvas final : public Canvas {
public:
    /// Layers inside one another; what is nested deeper is drawn without being put together first.
    static constexpr std::size_t maxLayers = 16;

    /// Bitmap, memory and mask must outlive the canvas. A view whose scale is no positive number
    /// shows nothing.
    RasterCanvas(Bitmap& target, RasterMemory& memory, TextMask& text, const RasterView& view);

    [[nodiscard]] bool isFlipped() const override {
        return view_.orientation == Orientation::YDown;
    }

    void saveState() override;
    void restoreState() override;
    void clip(const Path& path) override;
    void setShadow(const Shadow& shadow) override;
    void setBlendMode(BlendMode mode) override;
    void beginTransparencyLayer() override;
    void endTransparencyLayer() override;

    void fill(const Path& path, const Color& color) override;
    void stroke(const Path& path, const Color& color, double width) override;
    void fill(const Path& path, const Gradient& gradient, double angle) override;
    void drawImage(const Image& image, const Rect& rect, double fraction) override;

    [[nodiscard]] Size sizeOfText(std::string_view text, const TextStyle& style) const override;
    void drawText(std::string_view text, const Rect& rect, const TextStyle& style) override;

private:
    /// What a shape is filled with: a color, or the memory's gradient.
    struct Paint {
        Pixel color = 0;
        bool isGradient = false;
    };

    [[nodiscard]] Bitmap& target();
    [[nodiscard]] RasterMemory::State& state() { return memory_.states_.back(); }
    /// The row of coverage, long enough for the bitmap.
    [[nodiscard]] raster::Coverage* coverage() { return memory_.coverageRow_.data(); }
    void startStates(const PixelRect& clip);
    void makeClipMask(RasterMemory::ClipMask& made, const Path& path);

    void drawOutline(const Path& path, double strokeWidth, const Paint& paint);
    /// Draws a row of the target where the row of coverage and the clip let it.
    void blendCovered(int x, int y, int count, const raster::Ink& ink);
    void drawMask(const raster::Mask& mask, int dx, int dy, Pixel color);
    void drawScaledImage(const Bitmap& pixels, const Rect& place, const PixelRect& region,
                         raster::Coverage fraction);

    // Shadows.
    [[nodiscard]] double shadowDeviation();
    [[nodiscard]] PixelRect shadowOffset();
    void castShadow(const Path& path, double strokeWidth, const Rect& extent, const Paint& paint);
    /// The outline's shadow where it is wanted, from those of its pixels that lie in the region.
    void makeShadow(raster::Mask& shadow, const PixelRect& region, const PixelRect& wanted,
                    const Paint& paint);
    void castLayerShadow(const Bitmap& layer);
    void blurInto(raster::Mask& shadow, const PixelRect& region, const PixelRect& wanted);
    /// The shadow's plane, large enough for a region and what the blur adds; the region's row.
    void resetPlane(const PixelRect& region);
    [[nodiscard]] float* planeRow(int y);

    Bitmap& bitmap_;
    RasterMemory& memory_;
    TextMask& text_;
    RasterView view_;
    std::size_t flattenedLayers_ = 0;
};

} // namespace zarvil
