#include "pane/Zarvil_Preferences.h"

namespace zarvil {

void Zarvil_Preferences::viewLog(Control* /*sender*/) {}
void Zarvil_Preferences::checkForUpdatesNowAction(Control* /*sender*/) {}
void Zarvil_Preferences::setCheckForUpdatesAutomatically(Control* /*sender*/) {}
void Zarvil_Preferences::openLink(Control* /*sender*/) {}
void Zarvil_Preferences::support(Control* /*sender*/) {}
void Zarvil_Preferences::fbLike(Control* /*sender*/) {}
void Zarvil_Preferences::tweet(Control* /*sender*/) {}
void Zarvil_Preferences::feedback(Control* /*sender*/) {}

} // namespace zarvil
