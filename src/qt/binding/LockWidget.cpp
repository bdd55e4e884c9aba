#include "qt/binding/LockWidget.h"

#include "interface/AuthorizationView.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace zarvil {

namespace {

constexpr int lockSize = 18;

QPixmap padlock(const QColor& colour, bool open, double scale) {
    QPixmap picture(QSize(lockSize, lockSize) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.8));
    QPainterPath shackle;
    const double left = open ? 9.5 : 5.5;
    shackle.moveTo(left, 8.5);
    shackle.lineTo(left, 5.5);
    shackle.arcTo(QRectF(left, 2, 7, 7), 180, -180);
    if (!open)
        shackle.lineTo(left + 7, 8.5);
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(3, 8, 12, 8.5), 1.5, 1.5);
    return picture;
}

} // namespace

LockWidget::LockWidget(QWidget* parent) : QToolButton(parent) {
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(QSize(lockSize, lockSize));
    showState(authorizationState::startup, {});
}

void LockWidget::showState(int state, const QString& reason) {
    state_ = state;
    const bool busy =
        state == authorizationState::inProgress || state == authorizationState::startup;
    const QString words = state == authorizationState::unlocked ? tr("Administrator: unlocked")
                          : busy                                ? tr("Administrator: checking…")
                                                                : tr("Administrator: locked");
    setText(reason.isEmpty() ? words : words + QStringLiteral(" — ") + reason);
    setAccessibleName(text());
    redrawIcon();
}

void LockWidget::changeEvent(QEvent* event) {
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        redrawIcon();
}

void LockWidget::redrawIcon() {
    setIcon(padlock(palette().color(QPalette::ButtonText), state_ == authorizationState::unlocked,
                    devicePixelRatioF()));
}

} // namespace zarvil
