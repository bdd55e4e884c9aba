#pragma once

#include "controls/ZVMessageView.h"
#include "interface/PointerTracker.h"
#include "qt/canvas/RasterPainter.h"
#include "raster/RasterImage.h"

#include <QWidget>

namespace zarvil::qt {

/// A bevelled dark panel that other widgets stand on. The colors of text are set to be read on
/// it, in light and dark themes alike. High-contrast themes get a plain panel in their colors.
class MessagePanelWidget : public QWidget {
    Q_OBJECT

public:
    /// Of the panel's corners, in pixels.
    static constexpr double cornerRadius = 6;

    explicit MessagePanelWidget(QWidget* parent = nullptr);

    [[nodiscard]] ZVMessageView& view() { return view_; }
    /// Pauses the delegate's countdown while the pointer is over the panel as it is now.
    void setupTracking(std::shared_ptr<TrackingDelegate> delegate) {
        view_.setupTracking(std::move(delegate));
    }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void adoptColors();
    void tellFrame();
    void followPointer(std::optional<QPointF> position);

    RasterPainter raster_;
    RasterImageRenderer renderer_;
    ZVMessageView view_{renderer_};
    PointerTracker tracker_{view_};
    bool highContrast_ = false; ///< the theme is, and so the colors are its own
};

} // namespace zarvil::qt
