#include "qt/adapters/QtCursor.h"

namespace zarvil {

void QtCursor::set(CursorShape shape) {
    if (!widget_)
        return;
    if (shape == CursorShape::PointingHand)
        widget_->setCursor(Qt::PointingHandCursor);
    else
        widget_->unsetCursor();
}

} // namespace zarvil
