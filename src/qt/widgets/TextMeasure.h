#pragma once

#include <QSize>

class QFont;
class QString;
class QWidget;

namespace zarvil::qt {

/// What a text takes on the widget's screen in this font, wrapped at a width, or in its own lines
/// without one. Layouts ask for the same sizes again and again, so answers are remembered. The
/// flags are those of `QFontMetrics::boundingRect`.
[[nodiscard]] QSize textSize(const QWidget& widget, const QFont& font, int flags,
                             const QString& text);
[[nodiscard]] QSize textSize(const QWidget& widget, const QFont& font, int flags,
                             const QString& text, int width);

} // namespace zarvil::qt
