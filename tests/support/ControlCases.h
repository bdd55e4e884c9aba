#pragma once

#include "protocol/MessageCenter.h"
#include "protocol/Messages.h"

#include <array>
#include <string>
#include <string_view>

/// What a user does and what the pane sends for it, the same in every front end.
namespace zarvil {

struct ControlCase {
    std::string_view outlet;
    /// The text that is entered in a field; a control without one is clicked.
    std::string_view typed;
    /// As `described` shows it; empty when nothing is sent.
    std::string_view sent;
};

/// In order, each after the agent has sent `settingsOfCases` and that it protects.
inline constexpr std::array controlCases{
    ControlCase{"togglePowerButton", "", "ZVState state=0"},
    ControlCase{"launchButton", "", "ZVQuit"},
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
    ControlCase{"usePushover", "", "ZVPrefsChanged prefKey=UsePushover prefObj=0"},
    ControlCase{"useScriptsButton", "", "ZVPrefsChanged prefKey=UseScripts prefObj=0"},
    ControlCase{"testSettingsButton", "", "ZVTestShutdown"},
};

inline Dictionary settingsOfCases() {
    return {{"ShowStatusIcon", true}, {"UseEmailNotifi", true}, {"EmailAddress", "a@b.cc"},
            {"UsePushover", true},    {"PushUserId", "u"},      {"UseScripts", true},
            {"ShutdownDelay", 30}};
}

/// A message in one line; a boolean is shown as the number that some transports make of it.
inline std::string described(const Message& message) {
    std::string text = message.name;
    for (const auto& [key, value] : message.info().entries()) {
        const auto* string = value.as<std::string>();
        text += " " + key + "=" + (string ? *string : std::to_string(value.integerValue()));
    }
    return text;
}

} // namespace zarvil
