#include "host/ContrastStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace zarvil::host {

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_PanelButtonCommand && element != PE_IndicatorCheckBox)
        return;
    constexpr double radius = 2.5;
    const bool focused = element == PE_PanelButtonCommand && (option->state & State_HasFocus);
    const double width = focused ? 2 : 1;
    const double inset = width / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        QPen(option->palette.color(focused ? QPalette::Highlight : QPalette::ButtonText), width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(inset, inset, -inset, -inset), radius,
                             radius);
    painter->restore();
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element != CE_TabBarTabShape || !(option->state & State_Selected))
        return;
    constexpr int thickness = 3;
    QRect bar = option->rect;
    bar.setHeight(thickness);
    painter->fillRect(bar, option->palette.color(QPalette::Highlight));
}

} // namespace zarvil::host
