#include "pane/Product.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil {

namespace {

constexpr double answerTimeout = 2.0; // seconds
/// The wait for what came within the time-out and is still being read.
constexpr double readingTime = 0.05; // seconds

} // namespace

std::string Zarvil_Preferences::agentApplicationPath() const {
    return platform_.root + std::string(product::agentApplication);
}

void Zarvil_Preferences::appStatus() {
    expectAnswer(answerTimeout);
    post(message::ping);
}

void Zarvil_Preferences::expectAnswer(double seconds) {
    appOfflineTimer.reset();
    appOfflineTimer =
        platform_.handlers.schedule(platform_.timers, seconds, Repetition::Once, [this] {
            // The answer may be among what has come.
            if (platform_.messages.isBehind())
                expectAnswer(readingTime);
            else
                appDidNotAnswer();
        });
}

void Zarvil_Preferences::appDidAnswer(const Message* /*message*/) {
    guidance.agentDidAnswer();
    if (lostConnection) {
        lostConnection = false;
        emptyDeviceLists();
        allConnectedDevices_.clear();
        post(message::prefsLoaded);
    }
    launchButton.setEnabled(true);
    appOfflineTimer.reset();
    // The disabled switch is the look of an absent agent; no flag repeats it.
    if (togglePowerButton.isEnabled())
        return;
    setInterfaceEnabled(true);
    togglePowerButton.setEnabled(true);
    notLaunchedDesc.setHidden(true);
    launchedDesc.setHidden(false);
    showLaunchButton("Quit Zarvil", "quitApp:");
    connectedDevices.setAlphaValue(alpha::active);
    selectedDevices.setAlphaValue(alpha::active);
}

void Zarvil_Preferences::appDidNotAnswer() {
    guidance.agentDidNotAnswer(platform_.workspace.canLaunchApplication(agentApplicationPath()));
    lostConnection = true;
    launchButton.setEnabled(true);
    appOfflineTimer.reset();
    if (!togglePowerButton.isEnabled())
        return;
    togglePowerButton.setOn(false);
    state = false;
    onDesc.setHidden(true);
    offDesc.setHidden(false);
    emptyDeviceLists();
    setInterfaceEnabled(false);
    togglePowerButton.setEnabled(false);
    launchedDesc.setHidden(true);
    notLaunchedDesc.setHidden(false);
    showLaunchButton("Launch Zarvil", "launchApp:");
    arrayController.removeAllArrangedObjects();
    connectedDevices.setAlphaValue(alpha::dimmed);
    selectedDevices.setAlphaValue(alpha::dimmed);
    pushIndicator.stopAnimation();
}

void Zarvil_Preferences::showLaunchButton(std::string_view title, std::string_view action) {
    launchButton.setTitle(title);
    launchButton.setTarget(this);
    launchButton.setAction(action);
}

void Zarvil_Preferences::emptyDeviceLists() {
    devices.clear();
    savedArrayController.removeAllArrangedObjects();
    arrayController.removeAllArrangedObjects();
}

void Zarvil_Preferences::launchApp(Control* /*sender*/) {
    launchButton.setEnabled(false);
    guidance.launchDidBegin(platform_.workspace.launchApplication(agentApplicationPath()));
}

void Zarvil_Preferences::quitApp(Control* sender) {
    launchButton.setEnabled(false);
    // With protection off the agent is launched instead of quit, on purpose.
    if (state)
        post(message::quit);
    else
        launchApp(sender);
}

void Zarvil_Preferences::toggleOnOff(Control* sender) {
    state = !state;
    if (!testing)
        testSettingsButton.setEnabled(state);
    if (sender != &togglePowerButton)
        togglePowerButton.setOn(state);
    offDesc.setHidden(state);
    onDesc.setHidden(!state);
    platform_.messages.post(
        Message(message::setState, Dictionary{{std::string(payload::state), state}}));
}

void Zarvil_Preferences::stateChanged(const Message* message) {
    appDidAnswer(nullptr);
    // Flipping also echoes the agent's own state back to it, on purpose.
    if (infoOf(message).boolForKey(payload::state) != state)
        toggleOnOff(nullptr);
}

void Zarvil_Preferences::quitePrefs(const Message* /*message*/) {
    killHost();
    platform_.processes.exit(0);
}

void Zarvil_Preferences::linkChanged(LinkEvent event) {
    switch (event) {
    case LinkEvent::Up:
        guidance.busDidChange(true);
        break;
    case LinkEvent::Down:
        // No need to wait for an answer: what the user changed meanwhile would be lost.
        guidance.busDidChange(false);
        appDidNotAnswer();
        break;
    case LinkEvent::NewPeer:
        // What is on screen is the former agent's. The new one's first answer asks for its own.
        lostConnection = true;
        appStatus();
        break;
    }
}

bool Zarvil_Preferences::killHost() {
    const std::string identifier = platform_.workspace.mainBundleIdentifier();
    const auto running = platform_.workspace.runningApplications();
    const auto host = std::ranges::find(running, identifier, &RunningApplication::bundleIdentifier);
    // Without an identifier of its own the host cannot be told from others without one.
    if (identifier.empty() || host == running.end())
        return false;
    return platform_.processes.kill(host->processIdentifier);
}

} // namespace zarvil
