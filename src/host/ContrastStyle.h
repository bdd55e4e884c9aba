#pragma once

#include <QProxyStyle>

namespace zarvil::host {

/// Fusion derives the outlines of buttons from the window's color, too faint for high contrast;
/// this one takes them from the text's.
class ContrastStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ContrastStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace zarvil::host
