#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QSize>

class QPainter;
class QPushButton;
class QRect;
class QWidget;

/// Measures and colors that the pages share. All follow the application's font and palette, so
/// that nothing here is fixed to a theme; call again when those change.
namespace zarvil::qt::theme {

// Measures, in device-independent pixels.
/// Between the lines of a row.
constexpr int textGap = 2;
/// The fewest characters, in average ones, that a text has beside its controls.
constexpr int fewestCharacters = 16;
/// The step of all spacing around text: a little less than half a line.
[[nodiscard]] int unit(const QWidget& widget);
[[nodiscard]] int lineHeight(const QWidget& widget);
[[nodiscard]] int charactersWide(const QWidget& widget, int characters);
/// From the left edge of a check box to its text.
[[nodiscard]] int checkBoxIndent(const QWidget& widget);
/// What a push button needs so that its text has air on all sides.
[[nodiscard]] QSize buttonSize(const QPushButton& button);
inline constexpr int cardRadius = 8;
inline constexpr int chipRadius = 6;
/// The pane's margin at its sides.
inline constexpr int sideMargin = 20;
/// The column of the pages at its widest.
[[nodiscard]] int widestColumn(const QWidget& widget);

/// The font in another size and weight, whether it is given in points or in pixels.
[[nodiscard]] QFont scaled(QFont font, double factor, QFont::Weight weight = QFont::Normal);

// Colors.
[[nodiscard]] QColor mixed(const QColor& one, const QColor& other, double share);
[[nodiscard]] QColor cardGround(const QPalette& palette);
[[nodiscard]] QColor outlineOn(const QPalette& palette, const QColor& ground);
/// Text that steps back, as far as it stays legible on the window and on a card.
[[nodiscard]] QColor mutedText(const QPalette& palette);
/// What an edit field or a box is framed with on a card, where the styles' own frame, a little
/// darker than the window, would hardly be seen; invalid elsewhere.
[[nodiscard]] QColor fieldOutline(const QPalette& palette);
/// Frames a field or a box that stands in `place`, where it needs one.
void paintFieldOutline(QPainter& painter, const QPalette& palette, const QRect& place);
/// The same for the fields among the parent's children.
void paintFieldOutlines(QPainter& painter, const QWidget& parent);
/// What a palette lacks for its disabled text to be told from every ground that it stands on.
[[nodiscard]] QPalette disabledTextFor(const QPalette& palette);
[[nodiscard]] QColor bannerGround(const QPalette& palette);
[[nodiscard]] QColor bannerOutline(const QPalette& palette);
[[nodiscard]] QColor shield(const QPalette& palette);
/// Black or white, whichever stands out.
[[nodiscard]] QColor inkOn(const QColor& ground);
/// Dark enough for the fixed colors of a verdict in every theme.
[[nodiscard]] QColor chipGround(const QPalette& palette);

} // namespace zarvil::qt::theme
