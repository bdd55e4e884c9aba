#pragma once

#include "protocol/MessageCenter.h"
#include "protocol/Messages.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// What a user does and what the pane sends for it, the same in every front end.
namespace zarvil {

struct ControlCase {
    /// Of a list, the box of its first row.
    std::string_view outlet;
    /// The text that is entered in a field; a control without one is clicked.
    std::string_view typed;
    /// As `described` shows it; empty when nothing is sent.
    std::string_view sent;
};

/// In order, each after the agent has sent `messagesBeforeACase`.
inline constexpr std::array controlCases{
    ControlCase{"togglePowerButton", "", "ZVState state=0"},
    ControlCase{"launchButton", "", "ZVQuit"},
    ControlCase{"connectedDevices", "",
                "ZVAddedSaveItem device={DeviceName=Near DeviceSerial=1 DeviceVendor=V}"},
    ControlCase{"selectedDevices", "",
                "ZVSaveItemRemoved device={DeviceName=Far DeviceSerial=2 DeviceVendor=V}"},
    ControlCase{"launchAtLogin", "", "ZVPrefsChanged prefKey=LaunchAtLogin prefObj=1"},
    ControlCase{"showIcon", "", "ZVPrefsChanged prefKey=ShowStatusIcon prefObj=0"},
    ControlCase{"monoIcon", "", "ZVPrefsChanged prefKey=StatusIconMono prefObj=1"},
    ControlCase{"forceQuit", "", "ZVPrefsChanged prefKey=UseForce prefObj=1"},
    ControlCase{"showConnectMessage", "", "ZVPrefsChanged prefKey=NewDeviceMessage prefObj=1"},
    ControlCase{"showShutdownMessage", "", "ZVPrefsChanged prefKey=ShutdownMessage prefObj=1"},
    ControlCase{"shutdownDelayText", "75", "ZVPrefsChanged prefKey=ShutdownDelay prefObj=75"},
    ControlCase{"toggleMinSec", "", ""},
    ControlCase{"shutdownDelayText", "1.5", "ZVPrefsChanged prefKey=ShutdownDelay prefObj=90"},
    ControlCase{"toggleMinSec", "", ""},
    ControlCase{"showFailureNotifi", "", "ZVPrefsChanged prefKey=ShowFailNotifi prefObj=1"},
    ControlCase{"checkForUpdates", "", "ZVPrefsChanged prefKey=SUEnableAutomaticChecks prefObj=1"},
    ControlCase{"checkForUpdatesNow", "", "ZVCheckForUpdates"},
    ControlCase{"viewLogButton", "", "ZVViewLog"},
    ControlCase{"email", "c@d.ee", "ZVPrefsChanged prefKey=EmailAddress prefObj=c@d.ee"},
    ControlCase{"sendEmail", "", "ZVPrefsChanged prefKey=UseEmailNotifi prefObj=0"},
    ControlCase{"pushUserName", "user", "ZVPrefsChanged prefKey=PushUserId prefObj=user"},
    ControlCase{"pushDeviceName", "phone", "ZVPrefsChanged prefKey=PushDeviceId prefObj=phone"},
    ControlCase{"pushValidate", "",
                "ZVPrefsChanged prefKey=PushUserId prefObj=u; "
                "ZVPrefsChanged prefKey=PushDeviceId prefObj=d; ZVValidatePushover deviceId=d "
                "messageText=somemessage messageTitle=test userId=u validate=1"},
    ControlCase{"usePushover", "", "ZVPrefsChanged prefKey=UsePushover prefObj=0"},
    ControlCase{"useScriptsButton", "", "ZVPrefsChanged prefKey=UseScripts prefObj=0"},
    ControlCase{"testSettingsButton", "", "ZVTestShutdown"},
};

inline Dictionary settingsOfCases() {
    return {{"ShowStatusIcon", true}, {"UseEmailNotifi", true}, {"EmailAddress", "a@b.cc"},
            {"UsePushover", true},    {"PushUserId", "u"},      {"PushDeviceId", "d"},
            {"UseScripts", true},     {"ShutdownDelay", 30}};
}

/// All of them have come when the pane has echoed the last one's state, as it does with a new one.
inline std::vector<Message> messagesBeforeACase() {
    const auto devices = [](const char* name, const char* serial) {
        return Dictionary{{"devices", Array{Dictionary{{"DeviceName", name},
                                                       {"DeviceVendor", "V"},
                                                       {"DeviceSerial", serial}}}}};
    };
    return {Message(message::pushValidationFinished, Dictionary{{"code", 0}}),
            Message(message::savedPrefs, settingsOfCases()),
            Message(message::allSavedDevices, devices("Far", "2")),
            Message(message::allConnectedDevices, devices("Near", "1")),
            Message(message::stateChanged, Dictionary{{"state", false}}),
            Message(message::stateChanged, Dictionary{{"state", true}})};
}

/// A setting of the agent's, in place of or beside `settingsOfCases`, and where it shows.
struct SettingCase {
    std::string key;
    Value value;
    std::string outlet;
    /// What a field says; a button is on, and either may be `disabled` instead.
    std::string shown;
    static constexpr std::string_view disabled = "disabled";
};

inline std::vector<SettingCase> settingCases() {
    return {{"LaunchAtLogin", true, "launchAtLogin", ""},
            {"StatusIconMono", true, "monoIcon", ""},
            {"UseForce", true, "forceQuit", ""},
            {"ShutdownMessage", true, "showShutdownMessage", ""},
            {"HideShutdownMessage", true, "hideShutdownMessageButton", ""},
            {"ShowFailNotifi", true, "showFailureNotifi", ""},
            {"SUEnableAutomaticChecks", true, "checkForUpdates", ""},
            {"ShutdownDelay", 61, "shutdownDelayText", "61"},
            {"EmailAddress", "x@y.zz", "email", "x@y.zz"},
            {"PushUserId", "somebody", "pushUserName", "somebody"},
            {"PushDeviceId", "phone", "pushDeviceName", "phone"},
            {"Testing", true, "testSettingsButton", "disabled"},
            {"UsePushover", false, "pushUserName", "disabled"},
            {"UseScripts", false, "scriptsTitle", "disabled"}};
}

inline std::string described(const Dictionary& info) {
    std::string text;
    for (const auto& [key, value] : info.entries()) {
        const auto* string = value.as<std::string>();
        const auto* nested = value.as<Dictionary>();
        text += (text.empty() ? "" : " ") + key + "=" +
                (string   ? *string
                 : nested ? "{" + described(*nested) + "}"
                          : std::to_string(value.integerValue()));
    }
    return text;
}

/// A message in one line; a boolean is shown as the number that some transports make of it.
inline std::string described(const Message& message) {
    const std::string info = described(message.info());
    return message.name + (info.empty() ? "" : " ") + info;
}

/// What is heard of one act, in one line.
inline std::string described(const std::vector<Message>& messages) {
    std::string text;
    for (const Message& message : messages)
        text += (text.empty() ? "" : "; ") + described(message);
    return text;
}

} // namespace zarvil
