#pragma once

#include <QProxyStyle>

namespace zarvil::host {

/// Fusion derives the outlines of buttons and boxes from the window's color, too faint for high
/// contrast; this one takes them from the text's, and marks the tab that is shown.
class ContrastStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ContrastStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

} // namespace zarvil::host
