#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

namespace zarvil {

void Zarvil_Preferences::deviceConnected(const Message* /*message*/) { appDidAnswer(nullptr); }
void Zarvil_Preferences::deviceDisconnected(const Message* /*message*/) { appDidAnswer(nullptr); }
void Zarvil_Preferences::allSavedDevices(const Message* /*message*/) {}
void Zarvil_Preferences::allConnectedDevices(const Message* /*message*/) {}
void Zarvil_Preferences::allDevices(const Message* /*message*/) {}
void Zarvil_Preferences::newSavedDevice(const Message* /*message*/) {}
void Zarvil_Preferences::stateDidChange(ZVCollectionItem& /*item*/) {}

} // namespace zarvil
