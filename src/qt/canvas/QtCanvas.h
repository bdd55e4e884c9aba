#pragma once

#include "platform/Canvas.h"
#include "qt/canvas/ShadowCache.h"
#include "raster/Outline.h"

#include <QImage>
#include <QPainterPath>
#include <QTransform>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

QT_FORWARD_DECLARE_CLASS(QBrush)
QT_FORWARD_DECLARE_CLASS(QPainter)

namespace zarvil::qt {

/// Draws on a painter. The view's upper left corner is the painter's origin; a point is one of the
/// painter's units. Everything is drawn in whole device pixels of the painter, so that it is as
/// sharp as the device allows. The painter may scale and move, but not turn or shear.
class QtCanvas : public Canvas {
public:
    /// The painter must outlive the canvas and is given back as it was.
    QtCanvas(QPainter& painter, QSizeF viewSize, Orientation orientation);
    ~QtCanvas() override;

    [[nodiscard]] bool isFlipped() const override { return orientation_ == Orientation::YDown; }

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
    struct State {
        std::optional<Shadow> shadow;
        BlendMode blendMode = BlendMode::SourceOver;
    };
    /// Somewhere to draw: the given painter, or a layer over it.
    struct Target;

    [[nodiscard]] QPainter& painter() const;
    [[nodiscard]] QPainterPath devicePath(const Path& path) const;
    [[nodiscard]] QPainterPath deviceOutline(const Path& path, double width) const;
    void fillDevicePath(const QPainterPath& path, const QBrush& brush);
    /// Casts the current shadow, if there is one. An alpha that is even all over the shape lets
    /// the shadow be found again.
    void castShadow(const Path& path, double strokeWidth, const QPainterPath& shape,
                    const QBrush& brush, std::optional<double> evenAlpha);
    void drawShadow(const PlacedImage& shadow, QPoint shapeOrigin);
    [[nodiscard]] QPoint shadowOffset() const;
    [[nodiscard]] ShadowKey shadowKey(const Path& path, double strokeWidth, const QPoint& phase,
                                      double alpha) const;
    [[nodiscard]] double shadowDeviation() const;

    QPainter& base_;
    Orientation orientation_;
    QTransform baseTransform_; ///< the painter's own, to be restored
    QTransform toDevice_;      ///< from the view's coordinates to device pixels
    QTransform toPixels_;      ///< makes a painter of the base device draw in device pixels
    double scale_;             ///< device pixels a point
    QRect viewPixels_;
    QImage::Format format_; ///< of layers and shadows
    std::vector<State> states_{State{}};
    std::vector<std::unique_ptr<Target>> layers_;
};

} // namespace zarvil::qt
