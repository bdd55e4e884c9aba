#include "qt/canvas/Convert.h"
#include "qt/canvas/QtCanvas.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextOption>

namespace zarvil::qt {

namespace {

constexpr double pointsPerInch = 72;

} // namespace

/// The application's font in the size of the style, which counts the view's points and not those
/// of print. Without hinting, so that measures hold at every scale.
QFont QtCanvas::font(const TextStyle& style) const {
    QFont font = QGuiApplication::font();
    font.setPointSizeF(style.fontSize * pointsPerInch / base_.device()->logicalDpiY());
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

Size QtCanvas::sizeOfText(std::string_view text, const TextStyle& style) const {
    if (style.fontSize <= 0)
        return {};
    const QFontMetricsF metrics(font(style), base_.device());
    return {metrics.horizontalAdvance(toQt(text)), metrics.height()};
}

void QtCanvas::drawText(std::string_view text, const Rect& rect, const TextStyle& style) {
    if (style.fontSize <= 0 || text.empty() || rect.width <= 0 || rect.height <= 0)
        return;
    QPainter& target = painter();
    target.save();
    const QPointF corner = toDevice_.mapRect(qt::toQt(rect)).topLeft();
    target.setWorldTransform(QTransform(scale_, 0, 0, scale_, corner.x(), corner.y()), true);
    target.setFont(font(style));
    target.setPen(qt::toQt(style.color));
    target.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QRectF box({}, qt::toQt(rect.size()));
    const bool fits = sizeOfText(text, style).width <= rect.width;
    if (!fits)
        target.setClipRect(box, Qt::IntersectClip);
    QTextOption option(toQt(style.alignment) | Qt::AlignTop);
    option.setWrapMode(fits ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    target.drawText(box, toQt(text), option);
    target.restore();
}

} // namespace zarvil::qt
