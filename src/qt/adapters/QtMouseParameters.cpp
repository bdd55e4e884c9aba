#include "qt/adapters/QtMouseParameters.h"

#include <QGuiApplication>
#include <QStyleHints>

namespace zarvil {

std::optional<StickyClick> QtMouseParameters::stickyClick() const {
    const QStyleHints* hints = QGuiApplication::styleHints();
    const double distance = hints->startDragDistance();
    return StickyClick{hints->mouseDoubleClickInterval() / 1000.0, {distance, distance}};
}

} // namespace zarvil
