#include "qt/canvas/Convert.h"
#include "qt/canvas/QtCanvas.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QTextOption>

namespace zarvil::qt {

namespace {

/// Qt sets fonts in whole pixels alone. Text of any size is therefore measured and drawn in this
/// one, large enough for its own rounding not to count, and scaled to the size that is wanted.
constexpr int layoutSize = 512;

/// Without hinting, so that measures hold at every scale.
QFont layoutFont() {
    QFont font = QGuiApplication::font();
    font.setPixelSize(layoutSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    return font;
}

} // namespace

Size QtCanvas::sizeOfText(std::string_view text, const TextStyle& style) const {
    if (style.fontSize <= 0)
        return {};
    const QFontMetricsF metrics(layoutFont());
    const double scale = style.fontSize / layoutSize;
    return {metrics.horizontalAdvance(QString::fromUtf8(text)) * scale, metrics.height() * scale};
}

void QtCanvas::drawText(std::string_view text, const Rect& rect, const TextStyle& style) {
    if (style.fontSize <= 0 || text.empty() || rect.width <= 0 || rect.height <= 0)
        return;
    QPainter& target = painter();
    target.save();
    const QPointF corner = toDevice_.mapRect(qt::toQt(rect)).topLeft();
    const double textScale = style.fontSize / layoutSize;
    target.setWorldTransform(
        QTransform(scale_ * textScale, 0, 0, scale_ * textScale, corner.x(), corner.y()), true);
    target.setFont(layoutFont());
    target.setPen(qt::toQt(style.color));
    target.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QRectF box({}, qt::toQt(rect.size()) / textScale);
    const bool fits = sizeOfText(text, style).width <= rect.width;
    if (!fits)
        target.setClipRect(box, Qt::IntersectClip);
    QTextOption option(toQt(style.alignment) | Qt::AlignTop);
    option.setWrapMode(fits ? QTextOption::NoWrap : QTextOption::WrapAtWordBoundaryOrAnywhere);
    target.drawText(box, QString::fromUtf8(text), option);
    target.restore();
}

} // namespace zarvil::qt
