#pragma once

#include <array>
#include <string_view>

/// Every message name and payload key of the protocol between pane and agent.
namespace zarvil {

namespace message {

// From the pane to the agent.
inline constexpr std::string_view prefsLoaded = "ZVPrefsLoaded";
inline constexpr std::string_view ping = "ZVPing";
inline constexpr std::string_view quit = "ZVQuit";
inline constexpr std::string_view setState = "ZVState";
inline constexpr std::string_view prefsChanged = "ZVPrefsChanged";
inline constexpr std::string_view testShutdown = "ZVTestShutdown";
inline constexpr std::string_view viewLog = "ZVViewLog";
inline constexpr std::string_view checkForUpdates = "ZVCheckForUpdates";
inline constexpr std::string_view addedSaveItem = "ZVAddedSaveItem";
inline constexpr std::string_view saveItemRemoved = "ZVSaveItemRemoved";
inline constexpr std::string_view validatePushover = "ZVValidatePushover";

// From the agent to the pane.
inline constexpr std::string_view quitPrefs = "ZVQuitPrefs";
inline constexpr std::string_view deviceConnected = "ZVDeviceConnected";
inline constexpr std::string_view deviceDisconnected = "ZVDeviceDisconnected";
inline constexpr std::string_view allSavedDevices = "ZVAllSavedDevices";
inline constexpr std::string_view allConnectedDevices = "ZVAllConnectedDevices";
inline constexpr std::string_view allDevices = "ZVAllDevices";
inline constexpr std::string_view stateChanged = "ZVState2";
inline constexpr std::string_view pingAnswer = "ZVPingTest";
inline constexpr std::string_view savedPrefs = "ZVSavedPrefs";
inline constexpr std::string_view newSavedDevice = "ZVNewSavedDevice";
inline constexpr std::string_view testFinished = "ZVTestFinished";
inline constexpr std::string_view pushValidationFinished = "ZVPushValidationFinished";

/// Never sent: the pane hands itself a message of this name when no user ID is given.
inline constexpr std::string_view prefsUserIdWrong = "ZVPrefsUserIdWrong";

inline constexpr std::array paneToAgent{
    prefsLoaded,
    ping,
    quit,
    setState,
    prefsChanged,
    testShutdown,
    viewLog,
    checkForUpdates,
    addedSaveItem,
    saveItemRemoved,
    validatePushover,
};

inline constexpr std::array agentToPane{
    quitPrefs,           deviceConnected, deviceDisconnected, allSavedDevices,
    allConnectedDevices, allDevices,      stateChanged,       pingAnswer,
    savedPrefs,          newSavedDevice,  testFinished,       pushValidationFinished,
};

} // namespace message

namespace payload {

inline constexpr std::string_view prefKey = "prefKey";
inline constexpr std::string_view prefObj = "prefObj";
inline constexpr std::string_view state = "state";
inline constexpr std::string_view device = "device";
inline constexpr std::string_view devices = "devices";
inline constexpr std::string_view code = "code";

inline constexpr std::string_view deviceName = "DeviceName";
inline constexpr std::string_view deviceVendor = "DeviceVendor";
inline constexpr std::string_view deviceSerial = "DeviceSerial";
/// The serial of a device that has none.
inline constexpr std::string_view unknownSerial = "N/A";

inline constexpr std::string_view userId = "userId";
inline constexpr std::string_view deviceId = "deviceId";
inline constexpr std::string_view messageTitle = "messageTitle";
inline constexpr std::string_view messageText = "messageText";
inline constexpr std::string_view validate = "validate";

} // namespace payload

/// Verdicts of a Pushover check; any other code is an unknown failure.
namespace pushCode {

inline constexpr int valid = 0;
inline constexpr int noConnection = 1;
inline constexpr int wrongSettings = 2;

} // namespace pushCode

} // namespace zarvil
