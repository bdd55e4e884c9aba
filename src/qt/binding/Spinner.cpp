#include "qt/binding/Spinner.h"

#include <QPainter>
#include <QTimerEvent>

namespace zarvil::qt {

namespace {

constexpr int spokes = 12;
constexpr int stepInterval = 80; // milliseconds: about one turn a second

} // namespace

Spinner::Spinner(QWidget* parent) : QWidget(parent) {}

void Spinner::setAnimating(bool animating) {
    if (animating)
        timer_.start(stepInterval, this);
    else
        timer_.stop();
    update();
}

QSize Spinner::sizeHint() const { return {20, 20}; }

void Spinner::paintEvent(QPaintEvent* /*event*/) {
    if (!isAnimating())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    const double outer = qMin(width(), height()) / 2.0 - 1;
    painter.rotate(step_ * 360.0 / spokes);
    for (int spoke = 0; spoke < spokes; ++spoke) {
        QColor color = palette().color(QPalette::WindowText);
        color.setAlphaF(static_cast<float>(spoke + 1) / spokes);
        painter.setPen(QPen(color, outer / 5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -outer * 0.55), QPointF(0, -outer * 0.95));
        painter.rotate(360.0 / spokes);
    }
}

void Spinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId())
        return QWidget::timerEvent(event);
    step_ = (step_ + 1) % spokes;
    update();
}

} // namespace zarvil::qt
