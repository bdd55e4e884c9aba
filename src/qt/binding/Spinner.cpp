#include "qt/binding/Spinner.h"

#include "qt/widgets/Theme.h"

#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

namespace zarvil::qt {

namespace {

constexpr int steps = 12;
constexpr int stepInterval = 80; // milliseconds: about one turn a second
constexpr int extent = 20;
constexpr double ringWidth = 2.4;
constexpr double arc = 110; // degrees

bool wantsMotion(const QWidget& widget) {
    return widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

} // namespace

Spinner::Spinner(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Spinner::setHidesWhenIdle(bool hides) {
    hidesWhenIdle_ = hides;
    if (hides && !animating_)
        hide();
}

void Spinner::setAnimating(bool animating) {
    animating_ = animating;
    if (hidesWhenIdle_)
        setVisible(animating);
    turnWhileSeen();
    update();
}

void Spinner::turnWhileSeen() {
    if (animating_ && isVisible() && wantsMotion(*this))
        timer_.start(stepInterval, this);
    else
        timer_.stop();
}

QSize Spinner::sizeHint() const { return {extent, extent}; }

void Spinner::showEvent(QShowEvent* /*event*/) { turnWhileSeen(); }

void Spinner::hideEvent(QHideEvent* /*event*/) { turnWhileSeen(); }

void Spinner::paintEvent(QPaintEvent* /*event*/) {
    if (!isAnimating())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = std::min(width(), height()) / 2.0 - ringWidth;
    const QPointF centre = rect().toRectF().center();
    const QRectF ring(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    const QColor ground = palette().color(QPalette::Window);
    painter.setPen(
        QPen(theme::mixed(ground, palette().color(QPalette::WindowText), 0.25), ringWidth));
    painter.drawEllipse(ring);
    painter.setPen(QPen(theme::shield(palette()), ringWidth, Qt::SolidLine, Qt::FlatCap));
    constexpr double sixteenths = 16; // of a degree, as the painter counts
    painter.drawArc(ring, qRound((90 - step_ * 360.0 / steps) * sixteenths),
                    qRound(-arc * sixteenths));
}

void Spinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId())
        return QWidget::timerEvent(event);
    step_ = (step_ + 1) % steps;
    update();
}

} // namespace zarvil::qt
