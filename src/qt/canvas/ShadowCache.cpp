#include "qt/canvas/ShadowCache.h"

#include "qt/canvas/GaussianBlur.h"

#include <QColor>
#include <QRgba64>

#include <algorithm>
#include <cmath>

namespace zarvil::qt {

namespace {

Plane alphaOf(const QImage& image, int margin) {
    const QImage deep = image.convertToFormat(QImage::Format_RGBA64_Premultiplied);
    Plane plane(image.width() + 2 * margin, image.height() + 2 * margin);
    for (int y = 0; y < deep.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgba64*>(deep.constScanLine(y));
        float* row = plane.row(y + margin) + margin;
        for (int x = 0; x < deep.width(); ++x)
            row[x] = static_cast<float>(pixels[x].alpha()) / 65535.0F;
    }
    return plane;
}

QImage colored(const Plane& alpha, const QColor& color) {
    QImage image(alpha.width, alpha.height, QImage::Format_RGBA64_Premultiplied);
    const auto level = [](float value) {
        return static_cast<quint16>(std::lround(std::clamp(value, 0.0F, 1.0F) * 65535.0F));
    };
    for (int y = 0; y < alpha.height; ++y) {
        auto* pixels = reinterpret_cast<QRgba64*>(image.scanLine(y));
        const float* row = alpha.row(y);
        for (int x = 0; x < alpha.width; ++x) {
            const float value = row[x] * color.alphaF();
            pixels[x] = qRgba64(level(value * color.redF()), level(value * color.greenF()),
                                level(value * color.blueF()), level(value));
        }
    }
    return image;
}

} // namespace

PlacedImage makeShadow(const PlacedImage& shape, double standardDeviation, const QColor& color,
                       QImage::Format format) {
    const int margin = gaussianReach(standardDeviation);
    const Plane blurred = gaussianBlur(alphaOf(shape.image, margin), standardDeviation);
    return {colored(blurred, color).convertToFormat(format), shape.origin - QPoint(margin, margin)};
}

ShadowCache& ShadowCache::shared() {
    static ShadowCache cache;
    return cache;
}

const PlacedImage& ShadowCache::shadow(const ShadowKey& key,
                                       const std::function<PlacedImage()>& make) {
    const auto found = std::ranges::find(entries_, key, &Entry::key);
    if (found != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, found);
        return entries_.front().shadow;
    }
    entries_.push_front({key, make()});
    bytes_ += entries_.front().shadow.image.sizeInBytes();
    while (bytes_ > capacity && entries_.size() > 1) {
        bytes_ -= entries_.back().shadow.image.sizeInBytes();
        entries_.pop_back();
    }
    return entries_.front().shadow;
}

} // namespace zarvil::qt
