#include "qt/widgets/SymbolWidget.h"

#include "qt/widgets/Theme.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace zarvil::qt {

namespace {

// All paths stand on a grid of 24 by 24.
constexpr double grid = 24;
constexpr double stroke = 1.6;

QPainterPath lines(std::initializer_list<QPointF> points) {
    QPainterPath path;
    for (const QPointF& point : points)
        path.isEmpty() && path.elementCount() == 0 ? path.moveTo(point) : path.lineTo(point);
    return path;
}

QPainterPath shieldOutline() {
    QPainterPath path(QPointF(12, 2));
    path.cubicTo(14.4, 3.7, 17.2, 4.8, 20.4, 5);
    path.lineTo(20.4, 11);
    path.cubicTo(20.4, 16.2, 17, 20.2, 12, 22);
    path.cubicTo(7, 20.2, 3.6, 16.2, 3.6, 11);
    path.lineTo(3.6, 5);
    path.cubicTo(6.8, 4.8, 9.6, 3.7, 12, 2);
    path.closeSubpath();
    return path;
}

QPainterPath warning() {
    QPainterPath path = lines({{12, 3.2}, {22, 20.4}, {2, 20.4}});
    path.closeSubpath();
    path.addPath(lines({{12, 9.4}, {12, 14.2}}));
    path.addPath(lines({{12, 17.2}, {12, 17.3}}));
    return path;
}

QPainterPath plug() {
    QPainterPath path = lines({{8.6, 2.4}, {8.6, 7.6}});
    path.addPath(lines({{15.4, 2.4}, {15.4, 7.6}}));
    path.moveTo(5, 7.8);
    path.lineTo(19, 7.8);
    path.lineTo(19, 10.6);
    path.cubicTo(19, 14.6, 16, 17.2, 12, 17.2);
    path.cubicTo(8, 17.2, 5, 14.6, 5, 10.6);
    path.closeSubpath();
    path.addPath(lines({{12, 17.2}, {12, 22}}));
    return path;
}

QPainterPath eye() {
    QPainterPath path(QPointF(1.8, 12));
    path.cubicTo(5.8, 4.6, 18.2, 4.6, 22.2, 12);
    path.cubicTo(18.2, 19.4, 5.8, 19.4, 1.8, 12);
    path.addEllipse(QPointF(12, 12), 3, 3);
    return path;
}

QPainterPath script() {
    QPainterPath path = lines({{14.4, 2.6}, {5, 2.6}, {5, 21.4}, {19, 21.4}, {19, 7}, {14.4, 2.6}});
    path.addPath(lines({{8.2, 11}, {11, 13.6}, {8.2, 16.2}}));
    path.addPath(lines({{12.8, 16.6}, {15.6, 16.6}}));
    return path;
}

QPainterPath ringWithTick() {
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 9.6, 9.6);
    path.addPath(lines({{7.6, 12.4}, {10.8, 15.4}, {16.4, 9.2}}));
    return path;
}

void paintShield(QPainter& painter, Symbol symbol, const QPalette& palette, const QColor& ink) {
    if (symbol == Symbol::Shield) {
        const QColor ground = theme::shield(palette);
        painter.fillPath(shieldOutline(), ground);
        painter.setPen(QPen(theme::inkOn(ground), 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(lines({{8, 12.2}, {11, 15}, {16, 9.2}}));
        return;
    }
    painter.setPen(QPen(ink, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shieldOutline());
    if (symbol == Symbol::ShieldOff)
        painter.drawPath(lines({{8.6, 12}, {15.4, 12}}));
}

void paintLock(QPainter& painter, bool open, const QColor& ink) {
    QPainterPath shackle = lines({{8, 11}, {8, 7.6}});
    shackle.arcTo(QRectF(8, 3.4, 8, 8.4), 180, open ? -140 : -180);
    if (!open)
        shackle.lineTo(16, 11);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(shackle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRoundedRect(QRectF(4.6, 10.4, 14.8, 10.8), 1.6, 1.6);
}

QPainterPath strokedPath(Symbol symbol) {
    switch (symbol) {
    case Symbol::Warning:
        return warning();
    case Symbol::Tick:
        return ringWithTick();
    case Symbol::Plug:
        return plug();
    case Symbol::Eye:
        return eye();
    case Symbol::Script:
        return script();
    default:
        return {};
    }
}

} // namespace

void paintSymbol(QPainter& painter, Symbol symbol, const QRectF& square, const QPalette& palette,
                 const QColor& ink) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(square.topLeft());
    painter.scale(square.width() / grid, square.height() / grid);
    painter.setBrush(Qt::NoBrush);
    switch (symbol) {
    case Symbol::Shield:
    case Symbol::ShieldOff:
    case Symbol::ShieldUnknown:
        paintShield(painter, symbol, palette, ink);
        break;
    case Symbol::Dot:
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(QPointF(grid / 2, grid / 2), 3, 3);
        break;
    case Symbol::Lock:
    case Symbol::LockOpen:
        paintLock(painter, symbol == Symbol::LockOpen, ink);
        break;
    default:
        painter.setPen(QPen(ink, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(strokedPath(symbol));
    }
    painter.restore();
}

SymbolWidget::SymbolWidget(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolWidget::setSymbol(Symbol symbol) {
    symbol_ = symbol;
    update();
}

void SymbolWidget::setExtent(int extent) {
    extent_ = extent;
    updateGeometry();
}

void SymbolWidget::paintEvent(QPaintEvent* /*event*/) {
    if (symbol_ == Symbol::None)
        return;
    QPainter painter(this);
    const double side = std::min(width(), height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect()).center());
    const bool isLoud = symbol_ == Symbol::Warning;
    QColor ink = isLoud ? palette().color(QPalette::WindowText) : theme::mutedText(palette());
    // On a chip it takes the color of what it stands beside.
    if (const auto* label = qobject_cast<const QLabel*>(parentWidget()))
        ink = label->palette().color(QPalette::Active, label->foregroundRole());
    paintSymbol(painter, symbol_, square, palette(), ink);
}

} // namespace zarvil::qt
