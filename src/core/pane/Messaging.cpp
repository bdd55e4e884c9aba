#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil {

const std::vector<Zarvil_Preferences::NamedAction>& Zarvil_Preferences::actions() {
    using Self = Zarvil_Preferences;
    static const std::vector<NamedAction> table{
        {"launchApp:", &Self::launchApp},
        {"quitApp:", &Self::quitApp},
        {"toggleOnOff:", &Self::toggleOnOff},
        {"toggleShowIcon:", &Self::toggleShowIcon},
        {"toggleMonoIcon:", &Self::toggleMonoIcon},
        {"toggleForceQuit:", &Self::toggleForceQuit},
        {"setShouldLaunchAtLogin:", &Self::setShouldLaunchAtLogin},
        {"showFailNotifi:", &Self::showFailNotifi},
        {"autoUpdates:", &Self::autoUpdates},
        {"toggleShowConnectedMessage:", &Self::toggleShowConnectedMessage},
        {"toggleShowShutdownMessage:", &Self::toggleShowShutdownMessage},
        {"setShutdownDelay:", &Self::setShutdownDelay},
        {"toggleMinutesSeconds:", &Self::toggleMinutesSeconds},
        {"testShutdown:", &Self::testShutdown},
        {"setUserEmail:", &Self::setUserEmail},
        {"useEmailNotifications:", &Self::useEmailNotifications},
        {"usePushoverAction:", &Self::usePushoverAction},
        {"setUserId:", &Self::setUserId},
        {"setDeviceId:", &Self::setDeviceId},
        {"validatePushover:", &Self::validatePushover},
        {"goToPushover:", &Self::goToPushover},
        {"create:", &Self::create},
        {"useScripts:", &Self::useScripts},
        {"updateNewScriptsTitle:", &Self::updateNewScriptsTitle},
        {"unistallAction:", &Self::unistallAction},
        {"unistall:", &Self::unistall},
        {"uninstallSheetFinished:", &Self::uninstallSheetFinished},
        {"viewLog:", &Self::viewLog},
        {"checkForUpdates:", &Self::checkForUpdatesNowAction},
        {"setCheckForUpdatesAutomatically:", &Self::setCheckForUpdatesAutomatically},
        {"openLink:", &Self::openLink},
        {"support:", &Self::support},
        {"fbLike:", &Self::fbLike},
        {"tweet:", &Self::tweet},
        {"feedback:", &Self::feedback},
    };
    return table;
}

const std::vector<Zarvil_Preferences::NamedHandler>& Zarvil_Preferences::handlers() {
    using Self = Zarvil_Preferences;
    static const std::vector<NamedHandler> table{
        {message::quitPrefs, "quitePrefs:", &Self::quitePrefs},
        {message::deviceConnected, "deviceConnected:", &Self::deviceConnected},
        {message::deviceDisconnected, "deviceDisconnected:", &Self::deviceDisconnected},
        {message::allSavedDevices, "allSavedDevices:", &Self::allSavedDevices},
        {message::allConnectedDevices, "allConnectedDevices:", &Self::allConnectedDevices},
        {message::allDevices, "allDevices:", &Self::allDevices},
        {message::stateChanged, "stateChanged:", &Self::stateChanged},
        {message::pingAnswer, "appDidAnswer:", &Self::appDidAnswer},
        {message::savedPrefs, "setupPrefs:", &Self::setupPrefs},
        {message::newSavedDevice, "newSavedDevice:", &Self::newSavedDevice},
        {message::testFinished, "testFinished:", &Self::testFinished},
        {message::pushValidationFinished, "pushValidationFinished:", &Self::pushValidationFinished},
    };
    return table;
}

void Zarvil_Preferences::performAction(std::string_view action, Control* sender) {
    const auto found = std::ranges::find(actions(), action, &NamedAction::name);
    if (found != actions().end())
        platform_.handlers.run([this, sender, method = found->method] { (this->*method)(sender); });
}

void Zarvil_Preferences::performHandler(std::string_view handler, const Message* message) {
    const auto found = std::ranges::find(handlers(), handler, &NamedHandler::name);
    if (found == handlers().end())
        return;
    if (message)
        handle(found->method, *message);
    else
        platform_.handlers.run([this, method = found->method] { (this->*method)(nullptr); });
}

std::vector<std::string_view> Zarvil_Preferences::actionNames() {
    std::vector<std::string_view> names;
    for (const NamedAction& action : actions())
        names.push_back(action.name);
    return names;
}

void Zarvil_Preferences::registerForAgentMessages() {
    agentMessages_.clear();
    for (const NamedHandler& handler : handlers()) {
        agentMessages_.push_back(platform_.messages.addObserver(
            handler.message,
            [this, method = handler.method](const Message& message) { handle(method, message); }));
    }
    link_ = platform_.messages.observeLink([this](LinkEvent event) {
        platform_.handlers.run([this](LinkEvent handled) { linkChanged(handled); }, event);
    });
}

void Zarvil_Preferences::handle(MessageHandler method, const Message& message) {
    platform_.handlers.run([this, method](const Message& handled) { (this->*method)(&handled); },
                           message);
}

void Zarvil_Preferences::post(std::string_view name) { platform_.messages.post(Message(name)); }

void Zarvil_Preferences::postSetting(std::string_view key, Value value) {
    Dictionary change;
    change.setObject(payload::prefObj, std::move(value));
    change.setObject(payload::prefKey, key);
    platform_.messages.post(Message(message::prefsChanged, std::move(change)));
}

void Zarvil_Preferences::postState(std::string_view key, Control* sender) {
    if (const auto* button = dynamic_cast<Button*>(sender))
        postSetting(key, button->isOn());
}

} // namespace zarvil
