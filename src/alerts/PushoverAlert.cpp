#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"

namespace zarvil {

void Zarvil_Preferences::setPushoverEnabled(bool effective) {
    if (!effective || usePushover.state() == buttonState::off) {
        setPushoverFieldsEnabled(false);
        pushValidate.setEnabled(false);
        pushBox.setAlphaValue(alpha::dimmed);
        return;
    }
    setPushoverFieldsEnabled(true);
    if (!pushUserName.stringValue().empty())
        pushValidate.setEnabled(true);
    pushBox.setAlphaValue(alpha::active);
}

void Zarvil_Preferences::setPushoverFieldsEnabled(bool enabled) {
    pushUserName.setEnabled(enabled);
    pushDeviceName.setEnabled(enabled);
}

void Zarvil_Preferences::showSavedPushover(const Dictionary& settings) {
    const std::string* userId = settings.stringForKey(setting::pushUserId);
    const std::string* deviceId = settings.stringForKey(setting::pushDeviceId);
    const bool on = settings.boolForKey(setting::usePushover);
    usePushover.setState(on ? buttonState::on : buttonState::off);
    if (userId)
        pushUserName.setStringValue(*userId);
    if (deviceId)
        pushDeviceName.setStringValue(*deviceId);
    pushBox.setAlphaValue(on ? alpha::active : alpha::dimmed);
    setPushoverFieldsEnabled(on);
    // The presence of an ID counts here, not its length; `usePushoverAction` tests the length.
    pushValidate.setEnabled(on && userId);
}

void Zarvil_Preferences::usePushoverAction(Control* /*sender*/) {}
void Zarvil_Preferences::setUserId(Control* /*sender*/) {}
void Zarvil_Preferences::setDeviceId(Control* /*sender*/) {}
void Zarvil_Preferences::validatePushover(Control* /*sender*/) {}
void Zarvil_Preferences::goToPushover(Control* /*sender*/) {}
void Zarvil_Preferences::pushValidationFinished(const Message* /*message*/) {}

} // namespace zarvil
