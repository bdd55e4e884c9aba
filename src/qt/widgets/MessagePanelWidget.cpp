#include "qt/widgets/MessagePanelWidget.h"

#include "qt/widgets/Contrast.h"

#include <QGuiApplication>
#include <QHoverEvent>
#include <QPainter>

namespace zarvil::qt {

MessagePanelWidget::MessagePanelWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_Hover);
    adoptColors();
}

void MessagePanelWidget::adoptColors() {
    highContrast_ = isHighContrast(QGuiApplication::palette());
    QPalette colors;
    if (!highContrast_) {
        colors.setColor(QPalette::WindowText, Qt::white);
        colors.setColor(QPalette::Link, Qt::white);
        // What stands on the panel takes this for what is behind it.
        colors.setColor(QPalette::Window, QColor::fromRgbF(0.35F, 0.35F, 0.35F));
    }
    setPalette(colors);
}

void MessagePanelWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (highContrast_) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setBrush(palette().window());
        painter.drawRoundedRect(rect().adjusted(0, 0, -1, -1), cornerRadius, cornerRadius);
        return;
    }
    raster_.paintKept(painter, size(), Orientation::YUp,
                      [this](Canvas& canvas) { view_.drawRect(canvas); });
}

void MessagePanelWidget::tellFrame() {
    const QRectF frame = geometry();
    view_.setFrame({frame.x(), frame.y(), frame.width(), frame.height()});
}

void MessagePanelWidget::resizeEvent(QResizeEvent* /*event*/) { tellFrame(); }

void MessagePanelWidget::moveEvent(QMoveEvent* /*event*/) { tellFrame(); }

bool MessagePanelWidget::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        followPointer(static_cast<QHoverEvent*>(event)->position());
    else if (event->type() == QEvent::HoverLeave)
        followPointer(std::nullopt);
    else if ((event->type() == QEvent::PaletteChange || event->type() == QEvent::Show) &&
             highContrast_ != isHighContrast(QGuiApplication::palette()))
        adoptColors();
    return QWidget::event(event);
}

void MessagePanelWidget::followPointer(std::optional<QPointF> position) {
    const auto point =
        position ? std::optional(Point{position->x(), height() - position->y()}) : std::nullopt;
    tracker_.update(point, isActiveWindow() ? WindowActivity::Key : WindowActivity::NotKey);
}

} // namespace zarvil::qt
