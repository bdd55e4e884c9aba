#include "pane/Zarvil_Preferences.h"
#include "protocol/Settings.h"

namespace zarvil {

void Zarvil_Preferences::loadScripts() {}
void Zarvil_Preferences::unloadScripts() { scriptsArrayController.removeAllArrangedObjects(); }
void Zarvil_Preferences::create(Control* /*sender*/) {}
void Zarvil_Preferences::removeScript(const Record& /*record*/) {}
void Zarvil_Preferences::useScripts(Control* /*sender*/) {}
void Zarvil_Preferences::scriptsTitleChanged(TextField& /*field*/) {}
void Zarvil_Preferences::updateNewScriptsTitle(Control* /*sender*/) {}
void Zarvil_Preferences::setNewScriptTitleVal(std::optional<std::string> /*title*/) {}

} // namespace zarvil
