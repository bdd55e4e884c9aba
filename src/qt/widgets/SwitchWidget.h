#pragma once

#include "controls/KXButtonCell.h"
#include "interface/Button.h"
#include "interface/MouseLoop.h"
#include "qt/canvas/RasterPainter.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace zarvil::qt {

/// Shows a toggle button whose cell is a KXButtonCell. The mouse drags the knob; Space flips it,
/// the left arrow sets it off and the right one on, whatever the direction of writing: on is at
/// the right everywhere. Without a model it shows nothing.
///
/// The cell fills the widget up to a margin that is kept for the focus ring.
class SwitchWidget : public QWidget {
    Q_OBJECT

public:
    /// Room for the focus ring on every side, in points.
    static constexpr int ringMargin = 3;

    explicit SwitchWidget(QWidget* parent = nullptr);

    /// The model must outlive the widget or be replaced before it goes.
    void setModel(Button& model);
    [[nodiscard]] Button* model() const { return model_; }

    [[nodiscard]] bool isOn() const;
    [[nodiscard]] bool isMixed() const;
    /// What the switch writes in its track for its present state; empty where it writes nothing.
    [[nodiscard]] QString stateLabel() const;
    /// As a click does.
    void toggle();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] QRectF cellRect() const;
    [[nodiscard]] Point inCell(const QPointF& position) const;
    void tellFrame();
    void setByUser(int state);
    void announceState();
    void paintOutline(QPainter& painter, double distance, double width, const QColor& color) const;

    RasterPainter raster_;
    Button* model_ = nullptr;
    std::optional<MouseLoop> mouseLoop_;
    std::vector<Subscription> subscriptions_;
    std::optional<int> announcedState_;
};

} // namespace zarvil::qt
