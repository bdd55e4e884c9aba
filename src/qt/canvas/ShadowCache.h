#pragma once

#include <QImage>
#include <QPoint>

#include <array>
#include <functional>
#include <list>

namespace zarvil::qt {

/// A picture with the place of its top left pixel.
struct PlacedImage {
    QImage image;
    QPoint origin;
};

/// Numbers that tell one shape's shadow from another's, whatever whole pixel it stands at.
using ShadowKey = std::array<double, 16>;

/// Blurs an alpha image and colors it. The result reaches further than the source on every side.
/// `standardDeviation` is in pixels; the image's origin moves along.
[[nodiscard]] PlacedImage makeShadow(const PlacedImage& shape, double standardDeviation,
                                     const QColor& color, QImage::Format format);

/// The shadows drawn most recently, as blurring is what drawing a control mostly costs. For the
/// one thread that draws.
class ShadowCache {
public:
    /// The cache that all canvases share.
    static ShadowCache& shared();

    /// The shadow of this key, made if it is not there. Its origin is relative to the shape's.
    const PlacedImage& shadow(const ShadowKey& key, const std::function<PlacedImage()>& make);

private:
    /// In bytes: enough for every switch of a pane in every state, and for a drag across a track.
    static constexpr qsizetype capacity = 8 << 20;

    struct Entry {
        ShadowKey key;
        PlacedImage shadow;
    };
    std::list<Entry> entries_; ///< the latest first
    qsizetype bytes_ = 0;      ///< of their pixels
};

} // namespace zarvil::qt
