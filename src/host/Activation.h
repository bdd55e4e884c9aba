#pragma once

class QWidget;

namespace zarvil::host {

/// Brings a window before the user, who has just asked for it, and gives it the keyboard.
void bringToUser(QWidget& window);

} // namespace zarvil::host
