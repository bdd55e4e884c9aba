#pragma once

#include <QRectF>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace zarvil::qt {

/// Paints a note card into the bounds of an item. Cards of one size are drawn once and then
/// copied, so that a list of thousands scrolls smoothly. What stands on the card is dark text: the
/// card is yellow in every theme.
void paintNoteCard(QPainter& painter, const QRectF& bounds, qreal devicePixelRatio);

} // namespace zarvil::qt
