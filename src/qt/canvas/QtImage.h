#pragma once

#include "platform/Canvas.h"

#include <QImage>

namespace zarvil::qt {

/// A drawing kept as pixels, made when it is first drawn and again for another pixel density.
class QtImage final : public Image {
public:
    QtImage(Size size, ImageRenderer::Drawing drawing)
        : size_(size), drawing_(std::move(drawing)) {}

    [[nodiscard]] Size size() const override { return size_; }
    /// The picture with so many pixels a point; null when the size is empty.
    [[nodiscard]] const QImage& pixels(double scale, QImage::Format format) const;

private:
    Size size_;
    ImageRenderer::Drawing drawing_;
    mutable QImage pixels_;
    mutable double scale_ = 0;
};

class QtImageRenderer final : public ImageRenderer {
public:
    [[nodiscard]] std::shared_ptr<const Image> render(Size size, Drawing drawing) override {
        return std::make_shared<QtImage>(size, std::move(drawing));
    }
};

} // namespace zarvil::qt
