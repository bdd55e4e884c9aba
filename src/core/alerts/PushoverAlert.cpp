#include "pane/Product.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"

namespace zarvil {

namespace {

constexpr Color approving{0.1, 0.7, 0.1, 1};
constexpr Color alarming{1.0, 0.1, 0.1, 1};

enum class StoredIds : bool { Keep, Reset };

/// What the user is told of a check's result. The texts are keys of the string table, as they
/// stand there.
struct Verdict {
    std::string_view text;
    Color color;
    StoredIds storedIds;
};

Verdict verdictFor(std::int64_t code) {
    switch (code) {
    case pushCode::valid:
        return {"Settings are valid!", approving, StoredIds::Keep};
    case pushCode::noConnection:
        // Nothing is known against the IDs, so they stay.
        return {"Connection timeout! Check your Internet connection!", alarming, StoredIds::Keep};
    case pushCode::wrongSettings:
        return {"Invalid settings! Check your User ID and Device ID(if any)", alarming,
                StoredIds::Reset};
    default:
        return {"Unknow error!", alarming, StoredIds::Reset};
    }
}

Dictionary validationRequest(const std::string& userId, const std::string& deviceId) {
    Dictionary request;
    request.setObject(payload::userId, userId);
    if (!deviceId.empty())
        request.setObject(payload::deviceId, deviceId);
    request.setObject(payload::messageTitle, "test");
    request.setObject(payload::messageText, "somemessage");
    request.setObject(payload::validate, true);
    return request;
}

} // namespace

void Zarvil_Preferences::setPushoverEnabled(bool effective) {
    if (!effective || !usePushover.isOn()) {
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
    usePushover.setOn(on);
    if (userId)
        pushUserName.setStringValue(*userId);
    if (deviceId)
        pushDeviceName.setStringValue(*deviceId);
    pushBox.setAlphaValue(on ? alpha::active : alpha::dimmed);
    setPushoverFieldsEnabled(on);
    // The presence of an ID counts here, not its length; `usePushoverAction` tests the length.
    pushValidate.setEnabled(on && userId);
}

void Zarvil_Preferences::usePushoverAction(Control* sender) {
    const auto* box = dynamic_cast<Button*>(sender);
    if (!box)
        return;
    const bool on = box->isOn();
    postSetting(setting::usePushover, on);
    setPushoverFieldsEnabled(on);
    if (!on)
        pushValidate.setEnabled(false);
    else if (!pushUserName.stringValue().empty())
        pushValidate.setEnabled(true);
    pushBox.setAlphaValue(on ? alpha::active : alpha::dimmed, Transition::Animated);
}

void Zarvil_Preferences::setUserId(Control* sender) { postText(setting::pushUserId, sender); }

void Zarvil_Preferences::setDeviceId(Control* sender) { postText(setting::pushDeviceId, sender); }

void Zarvil_Preferences::postText(std::string_view key, Control* sender) {
    const auto* field = dynamic_cast<TextField*>(sender);
    if (field && !field->stringValue().empty())
        postSetting(key, field->stringValue());
}

void Zarvil_Preferences::validatePushover(Control* /*sender*/) {
    if (pushUserName.stringValue().empty()) {
        const Message refusal(message::prefsUserIdWrong,
                              Dictionary{{std::string(payload::code), pushCode::wrongSettings}});
        pushValidationFinished(&refusal);
        return;
    }
    setPushoverFieldsEnabled(false);
    pushBox.setAlphaValue(alpha::dimmed, Transition::Animated);
    pushIndicator.startAnimation();
    pushValidate.setEnabled(false);
    setUserId(&pushUserName);
    setDeviceId(&pushDeviceName);
    platform_.messages.post(
        Message(message::validatePushover,
                validationRequest(pushUserName.stringValue(), pushDeviceName.stringValue())));
}

void Zarvil_Preferences::pushValidationFinished(const Message* message) {
    // Enabled even if the alert was switched off while the check ran, on purpose.
    setPushoverFieldsEnabled(true);
    pushValidate.setEnabled(true);
    pushBox.setAlphaValue(alpha::active, Transition::Animated);
    pushIndicator.stopAnimation();
    const Verdict verdict = verdictFor(infoOf(message).integerForKey(payload::code));
    if (verdict.storedIds == StoredIds::Reset)
        resetUserAndDeviceSettings();
    TextAttributes look;
    look.foregroundColor = verdict.color;
    look.alignment = TextAlignment::Centered;
    pushValidationStatus.setAttributedStringValue(
        AttributedString(platform_.strings.localizedString(verdict.text), look));
    pushValidationStatus.setHidden(false);
    guidance.verdictSymbol.setSymbol(verdict.color == approving ? Symbol::Tick : Symbol::Warning);
    guidance.announce(pushValidationStatus.stringValue());
}

// The fields keep what the user typed; only what the agent stores is emptied.
void Zarvil_Preferences::resetUserAndDeviceSettings() {
    postSetting(setting::pushUserId, "");
    postSetting(setting::pushDeviceId, "");
}

void Zarvil_Preferences::goToPushover(Control* /*sender*/) { openURL(product::pushoverSite); }

} // namespace zarvil
