#pragma once

#include "platform/Canvas.h"
#include "raster/Bitmap.h"

namespace zarvil {

class TextMask;

/// A drawing kept as pixels, made when it is first drawn and again for another pixel density.
class RasterImage final : public Image {
public:
    RasterImage(Size size, ImageRenderer::Drawing drawing)
        : size_(size), drawing_(std::move(drawing)) {}

    [[nodiscard]] Size size() const override { return size_; }
    /// The picture with so many pixels a point.
    [[nodiscard]] const Bitmap& pixels(double scale, TextMask& text) const;

private:
    Size size_;
    ImageRenderer::Drawing drawing_;
    mutable Bitmap pixels_;
    mutable double scale_ = 0;
};

class RasterImageRenderer final : public ImageRenderer {
public:
    [[nodiscard]] std::shared_ptr<const Image> render(Size size, Drawing drawing) override {
        return std::make_shared<RasterImage>(size, std::move(drawing));
    }
};

} // namespace zarvil
