#pragma once

#include <QStringList>

class QWidget;

/// The tabs of the pane that a window shows, by the names that command lines and the desktop's
/// menus know them by, in every language: a page's object name in small letters, without a "Tab"
/// at its end.
namespace zarvil::host {

/// Empty for a pane without named tabs.
[[nodiscard]] QStringList tabNames(const QWidget& window);

/// Turns to a tab, whichever way its name is capitalised; false when there is none.
bool turnToTab(const QWidget& window, const QString& name);

} // namespace zarvil::host
