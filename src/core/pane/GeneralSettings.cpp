#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"
#include "protocol/Numbers.h"
#include "protocol/Settings.h"

namespace zarvil {

namespace {

constexpr std::string_view showMinutesDefault = "kZVShowMinutes";
constexpr float secondsPerMinute = 60.0F;
constexpr std::string_view notADelay =
    "Only a number of 0 or more is taken, such as %1. The delay stays as it was.";

/// The sender as the kind of control that the action works on, or null.
template <typename Kind>
Kind* senderAs(Control* sender) {
    return dynamic_cast<Kind*>(sender);
}

std::int64_t secondsFromMinutes(float minutes) {
    return numbers::truncated(numbers::narrowed(double{minutes * secondsPerMinute}));
}

} // namespace

// The action itself takes any text as a number; what the user means as none never gets there.
void Zarvil_Preferences::setUpDelayField() {
    shutdownDelayText.setDecimalSeparator(platform_.decimalSeparator);
    shutdownDelayText.setEntryCheck([this](std::string_view text) {
        const std::string& separator = platform_.decimalSeparator;
        if (numbers::isUnsignedDecimal(text, separator))
            return std::string();
        return platform_.strings.localizedString(notADelay, {"1" + separator + "5"});
    });
}

void Zarvil_Preferences::restoreDelayUnit() {
    if (!platform_.defaults.boolForKey(showMinutesDefault))
        return;
    toggleMinSec.setOn(true);
    toggleMinSec.setTitle(platform_.strings.localizedString("minutes"));
}

void Zarvil_Preferences::setupPrefs(const Message* message) {
    const Dictionary& settings = infoOf(message);
    const auto show = [&settings](Button& button, std::string_view key) {
        button.setOn(settings.boolForKey(key));
    };
    show(launchAtLogin, setting::launchAtLogin);
    show(showIcon, setting::showStatusIcon);
    show(forceQuit, setting::useForce);
    show(monoIcon, setting::statusIconMono);
    show(showShutdownMessage, setting::shutdownMessage);
    showSavedDelay(settings);
    // From the shutdown message alone; `toggleShowShutdownMessage` follows another rule on purpose.
    hideShutdownMessage.setEnabled(showShutdownMessage.isOn());
    showSavedPushover(settings);
    showSavedEmail(settings);
    show(hideShutdownMessageButton, setting::hideShutdownMessage);
    show(showFailureNotifi, setting::showFailNotifi);
    show(checkForUpdates, setting::enableAutomaticChecks);
    testing = settings.boolForKey(setting::testing);
    guidance.testDidChange(testing);
    testSettingsButton.setEnabled(!testing);
    showSavedScripts(settings);
    lostConnection = false;
}

void Zarvil_Preferences::showSavedDelay(const Dictionary& settings) {
    guidance.delayDidChange(settings.objectForKey(setting::shutdownDelay)
                                ? std::optional(settings.integerForKey(setting::shutdownDelay))
                                : std::nullopt);
    if (toggleMinSec.state() == buttonState::on)
        shutdownDelayText.setFloatValue(settings.floatForKey(setting::shutdownDelay) /
                                        secondsPerMinute);
    else
        shutdownDelayText.setIntegerValue(settings.integerForKey(setting::shutdownDelay));
}

void Zarvil_Preferences::showSavedScripts(const Dictionary& settings) {
    const bool on = settings.boolForKey(setting::useScripts);
    useScriptsButton.setOn(on);
    scriptsCollection.setAlphaValue(on ? alpha::active : alpha::dimmed);
    scriptsTitle.setEnabled(on);
    createNewScript.setEnabled(false);
    scriptsTitle.setStringValue("");
}

void Zarvil_Preferences::toggleShowIcon(Control* sender) {
    postState(setting::showStatusIcon, sender);
}

void Zarvil_Preferences::toggleMonoIcon(Control* sender) {
    postState(setting::statusIconMono, sender);
}

void Zarvil_Preferences::toggleForceQuit(Control* sender) { postState(setting::useForce, sender); }

void Zarvil_Preferences::setShouldLaunchAtLogin(Control* sender) {
    postState(setting::launchAtLogin, sender);
}

void Zarvil_Preferences::showFailNotifi(Control* sender) {
    postState(setting::showFailNotifi, sender);
}

void Zarvil_Preferences::autoUpdates(Control* sender) {
    postState(setting::enableAutomaticChecks, sender);
}

void Zarvil_Preferences::toggleShowConnectedMessage(Control* sender) {
    const auto* box = senderAs<Button>(sender);
    if (!box)
        return;
    hideConnectMessage.setEnabled(box->isOn());
    postState(setting::newDeviceMessage, sender);
}

void Zarvil_Preferences::toggleShowShutdownMessage(Control* sender) {
    const auto* box = senderAs<Button>(sender);
    if (!box)
        return;
    const bool on = box->isOn();
    const bool hide = hideShutdownMessageButton.isOn();
    hideShutdownMessage.setEnabled(on && hide);
    shutdownDelayText.setEnabled(!on || !hide);
    hideShutdownMessageButton.setEnabled(on);
    postState(setting::shutdownMessage, sender);
}

void Zarvil_Preferences::setShutdownDelay(Control* sender) {
    const auto* field = senderAs<TextField>(sender);
    if (!field)
        return;
    const std::int64_t seconds = toggleMinSec.state() == buttonState::on
                                     ? secondsFromMinutes(field->floatValue())
                                     : field->integerValue();
    guidance.delayDidChange(seconds);
    postSetting(setting::shutdownDelay, seconds);
}

void Zarvil_Preferences::toggleMinutesSeconds(Control* sender) {
    auto* unit = senderAs<Button>(sender);
    if (!unit)
        return;
    platform_.defaults.setBool(unit->isOn(), showMinutesDefault);
    if (unit->state() != buttonState::on) {
        shutdownDelayText.setIntegerValue(secondsFromMinutes(shutdownDelayText.floatValue()));
        unit->setTitle(platform_.strings.localizedString("seconds"));
        return;
    }
    unit->setTitle(platform_.strings.localizedString("minutes"));
    // Whole minutes: the remainder is lost on purpose, the agent keeps its seconds.
    const auto seconds = static_cast<float>(shutdownDelayText.integerValue());
    shutdownDelayText.setIntegerValue(numbers::truncated(double{seconds / secondsPerMinute}));
}

void Zarvil_Preferences::testShutdown(Control* sender) {
    testing = true;
    guidance.testDidChange(true);
    if (sender)
        sender->setEnabled(false);
    post(message::testShutdown);
}

void Zarvil_Preferences::testFinished(const Message* /*message*/) {
    testSettingsButton.setEnabled(state && !lostConnection);
    testing = false;
    guidance.testDidChange(false);
}

} // namespace zarvil
