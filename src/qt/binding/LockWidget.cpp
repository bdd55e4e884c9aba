#include "qt/binding/LockWidget.h"

#include "interface/AuthorizationView.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

namespace zarvil::qt {

namespace {

constexpr int lockSize = 18;

QPixmap padlock(const QColor& color, bool open, double scale) {
    QPixmap picture(QSize(lockSize, lockSize) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.8));
    QPainterPath shackle;
    const double left = open ? 9.5 : 5.5;
    shackle.moveTo(left, 8.5);
    shackle.lineTo(left, 5.5);
    shackle.arcTo(QRectF(left, 2, 7, 7), 180, -180);
    if (!open)
        shackle.lineTo(left + 7, 8.5);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(3, 8, 12, 8.5), 1.5, 1.5);
    return picture;
}

} // namespace

LockWidget::LockWidget(QWidget* parent)
    : QWidget(parent), lock_(new QToolButton(this)), reason_(new QLabel(this)) {
    lock_->setAutoRaise(true);
    lock_->setFocusPolicy(Qt::TabFocus);
    lock_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    lock_->setIconSize(QSize(lockSize, lockSize));
    reason_->setWordWrap(true);
    setFocusProxy(lock_);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lock_);
    layout->addWidget(reason_, 1);
    connect(lock_, &QToolButton::clicked, this, &LockWidget::clicked);
    showState(authorizationState::startup, {});
}

void LockWidget::showState(int state, const QString& reason) {
    state_ = state;
    switch (state) {
    case authorizationState::unlocked:
        lock_->setText(tr("Administrator: unlocked"));
        break;
    case authorizationState::locked:
        lock_->setText(tr("Administrator: locked"));
        break;
    default:
        lock_->setText(tr("Administrator: checking…"));
    }
    reason_->setText(reason);
    lock_->setAccessibleDescription(reason);
    redrawIcon();
}

QString LockWidget::reason() const { return reason_->text(); }

void LockWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        redrawIcon();
}

void LockWidget::redrawIcon() {
    lock_->setIcon(padlock(palette().color(QPalette::ButtonText),
                           state_ == authorizationState::unlocked, devicePixelRatioF()));
}

} // namespace zarvil::qt
