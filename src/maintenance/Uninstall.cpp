#include "pane/Zarvil_Preferences.h"

namespace zarvil {

void Zarvil_Preferences::unistallAction(Control* /*sender*/) {}
void Zarvil_Preferences::unistall(Control* /*sender*/) {}
void Zarvil_Preferences::uninstallSheetFinished(Control* /*sender*/) {}

} // namespace zarvil
