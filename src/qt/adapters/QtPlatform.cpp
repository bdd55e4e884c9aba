#include "qt/adapters/QtPlatform.h"

#include <QGuiApplication>
#include <QLocale>
#include <QStyleHints>

#include <utility>

namespace zarvil {

namespace {

/// The double-click interval and the drag distance.
StickyClick stickyClick() {
    const QStyleHints* hints = QGuiApplication::styleHints();
    const double distance = hints->startDragDistance();
    return {hints->mouseDoubleClickInterval() / 1000.0, {distance, distance}};
}

} // namespace

QtPlatform::QtPlatform(Parts parts, MessageBus& session, std::string root)
    : parts_(std::move(parts)),
      workspace_(session),
      platform_{handlers_,       *parts_.messages,
                timers_,         *parts_.clock,
                workspace_,      *parts_.files,
                defaults_,       alerts_,
                *parts_.scripts, authorization_,
                strings_,        stickyClick(),
                modal_,          *parts_.processes,
                std::move(root), QLocale().decimalPoint().toStdString()} {}

} // namespace zarvil
