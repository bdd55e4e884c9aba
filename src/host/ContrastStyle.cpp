#include "host/ContrastStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace zarvil::host {

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_PanelButtonCommand)
        return;
    constexpr double radius = 2.5;
    const QColor ink = option->palette.color(QPalette::ButtonText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(ink);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->restore();
}

} // namespace zarvil::host
