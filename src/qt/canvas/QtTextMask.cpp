#include "qt/canvas/QtTextMask.h"

#include "qt/canvas/Convert.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
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

Size QtTextMask::sizeOfText(std::string_view text, double fontSize) const {
    const QFontMetricsF metrics(layoutFont());
    const double scale = fontSize / layoutSize;
    return {metrics.horizontalAdvance(toQt(text)) * scale, metrics.height() * scale};
}

void QtTextMask::draw(const MaskedText& text, const MaskBuffer& buffer) {
    QImage mask(buffer.bytes, buffer.width, buffer.height,
                static_cast<qsizetype>(buffer.bytesPerRow), QImage::Format_Alpha8);
    QPainter painter(&mask);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = text.fontSize * text.scale / layoutSize;
    painter.translate(text.box.x, text.box.y);
    painter.scale(scale, scale);
    painter.setFont(layoutFont());
    QTextOption option(toQt(text.alignment) | Qt::AlignTop);
    option.setWrapMode(text.wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                  : QTextOption::NoWrap);
    painter.drawText(QRectF({}, toQt(text.box.size()) / scale), toQt(text.text), option);
}

} // namespace zarvil::qt
