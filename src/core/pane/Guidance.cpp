#include "pane/Guidance.h"

#include "interface/DisplayText.h"
#include "protocol/Messages.h"

#include <utility>

namespace zarvil {

namespace {

constexpr std::string_view acceptedAddress =
    "Stored with Return, once it is complete and ends in two to four letters.";
constexpr std::string_view notStored = "Not stored while Zarvil is not running.";
constexpr std::string_view separator = " · ";
constexpr std::int64_t secondsPerMinute = 60;
/// From here on whole minutes are told as such.
constexpr std::int64_t fewestMinutes = 2;

/// Every control that needs the agent, this one among them, is greyed without it.
bool isInterfaceActive(const Outlets& outlets) { return outlets.toggleMinSec.isEnabled(); }

bool isProtectionOn(const Outlets& outlets) { return !outlets.onDesc.isHidden(); }

std::string deviceName(const Dictionary& device, const StringTable& strings) {
    const std::string* given = device.stringForKey(payload::deviceName);
    const std::string shown = given ? showableText(*given, longestShownLine) : std::string();
    return shown.empty() ? strings.localizedString("Unnamed device") : shown;
}

void turn(ProgressIndicator& indicator, bool turning) {
    if (turning)
        indicator.startAnimation();
    else
        indicator.stopAnimation();
}

} // namespace

Guidance::Guidance(Outlets& outlets, const StringTable& strings)
    : outlets_(outlets), strings_(strings) {
    chooseDevices.setTarget(this);
    chooseDevices.setAction("chooseDevices:");
    observeOutlets();
    showAgent();
    showConnected();
    showWatched();
    showWhatIsNotStored();
}

void Guidance::observeOutlets() {
    const auto follow = [this](const auto& property, void (Guidance::*show)()) {
        subscriptions_.push_back(
            property.observe([this, show](const auto&, Transition) { (this->*show)(); }));
    };
    follow(outlets_.onDesc.hiddenProperty(), &Guidance::showStatus);
    follow(selectedTab_, &Guidance::showStatus);
    subscriptions_.push_back(
        outlets_.arrayController.observe([this](const ListChange&) { showConnected(); }));
    subscriptions_.push_back(
        outlets_.savedArrayController.observe([this](const ListChange&) { showWatched(); }));
    follow(outlets_.toggleMinSec.enabledProperty(), &Guidance::showDelayHint);
    follow(outlets_.toggleMinSec.stateProperty(), &Guidance::showDelayHint);
    follow(outlets_.shutdownDelayText.enabledProperty(), &Guidance::showDelayHint);
    follow(outlets_.showShutdownMessage.stateProperty(), &Guidance::showDelayHint);
    follow(outlets_.hideShutdownMessageButton.stateProperty(), &Guidance::showDelayHint);
    follow(outlets_.toggleMinSec.enabledProperty(), &Guidance::showTest);
    follow(outlets_.testSettingsButton.enabledProperty(), &Guidance::showTest);
    follow(outlets_.onDesc.hiddenProperty(), &Guidance::showTest);
    follow(outlets_.authView.stateProperty(), &Guidance::showLock);
    follow(outlets_.authView.reasonProperty(), &Guidance::showLock);
}

void Guidance::agentDidAnswer() {
    // Every message of the agent is one answer more.
    if (presence_ == Presence::Running && !launching_)
        return;
    launching_ = false;
    setPresence(Presence::Running);
}

void Guidance::agentDidNotAnswer(bool installed) {
    launching_ = false;
    installed_ = installed;
    delay_.reset();
    setPresence(Presence::Absent);
}

void Guidance::launchDidBegin(bool possible) {
    launching_ = possible;
    installed_ = possible;
    showAgent();
    announce(agentHint.stringValue());
}

void Guidance::deviceDidConnect(const Dictionary& device) {
    announceDevice("Connected: %1", device);
}

void Guidance::deviceDidDisconnect(const Dictionary& device) {
    announceDevice("Disconnected: %1", device);
}

void Guidance::announceDevice(std::string_view words, const Dictionary& device) {
    if (!announcements_.empty())
        announce(strings_.localizedString(words, {deviceName(device, strings_)}));
}

void Guidance::whileDevicesChange(const std::function<void()>& change) {
    manyDevicesChange_ = true;
    change();
    manyDevicesChange_ = false;
    showConnected();
    showWatched();
}

void Guidance::testDidChange(bool running) {
    if (testing_ != running)
        testEnded_ = testing_;
    testing_ = running;
    showTest();
}

void Guidance::delayDidChange(std::optional<std::int64_t> seconds) {
    delay_ = seconds;
    showStatus();
}

void Guidance::busDidChange(bool answers) {
    busAnswers_ = answers;
    showAgent();
}

void Guidance::lockWasClicked() {
    lockClicked_ = true;
    showLock();
}

void Guidance::authorityIsMissing(const std::string& name) {
    missingAuthority_ = name;
    showLock();
}

void Guidance::performAction(std::string_view /*action*/, Control* /*sender*/) {
    selectTab(Tab::Devices);
}

void Guidance::setPresence(Presence presence) {
    const Presence before = std::exchange(presence_, presence);
    showStatus();
    showAgent();
    showTest();
    showWhatIsNotStored();
    // An agent that runs from the start is no news.
    if (presence == Presence::Absent && before != Presence::Absent)
        announce(outlets_.notLaunchedDesc.stringValue());
    else if (before == Presence::Absent && presence == Presence::Running)
        announce(outlets_.launchedDesc.stringValue());
}

std::string Guidance::text(std::string_view key) const { return strings_.localizedString(key); }

std::string Guidance::delayInWords() const {
    if (!delay_ || *delay_ < 0)
        return {};
    if (*delay_ == 0)
        return text("shuts down at once");
    if (*delay_ % secondsPerMinute == 0 && *delay_ / secondsPerMinute >= fewestMinutes)
        return strings_.localizedCount("shuts down after %n minute", "shuts down after %n minutes",
                                       *delay_ / secondsPerMinute);
    return strings_.localizedCount("shuts down after %n second", "shuts down after %n seconds",
                                   *delay_);
}

std::string Guidance::protectionInWords() const {
    const auto watched =
        static_cast<std::int64_t>(outlets_.savedArrayController.arrangedObjects().size());
    std::string words = strings_.localizedCount("%n device watched", "%n devices watched", watched);
    if (const std::string delay = delayInWords(); !delay.empty())
        words += std::string(separator) + delay;
    return words;
}

void Guidance::showStatus() {
    const bool on = isProtectionOn(outlets_);
    const bool looking = presence_ == Presence::Unknown && !on;
    const bool unwatched = on && outlets_.savedArrayController.empty();
    turn(statusIndicator, looking);
    chooseDevices.setHidden(!unwatched || selectedTab_.get() == Tab::Devices);
    if (looking) {
        statusSymbol.setSymbol(Symbol::ShieldUnknown);
        statusLine.setStringValue(text("Looking for Zarvil…"));
    } else if (!on) {
        statusSymbol.setSymbol(Symbol::ShieldOff);
        statusLine.setStringValue(text("Nothing happens when the power fails."));
    } else if (unwatched) {
        statusSymbol.setSymbol(Symbol::Warning);
        statusLine.setStringValue(text("No device is watched, so a power failure goes unnoticed."));
    } else {
        statusSymbol.setSymbol(Symbol::Shield);
        statusLine.setStringValue(protectionInWords());
    }
}

void Guidance::showAgent() {
    const bool absent = presence_ == Presence::Absent || !busAnswers_;
    const bool launching = absent && launching_;
    agentRow.setProminent(absent);
    turn(agentIndicator, launching);
    agentSymbol.setSymbol(!absent ? Symbol::Dot : launching ? Symbol::None : Symbol::Warning);
    agentHint.setHidden(!absent);
    if (!absent)
        agentHint.setStringValue({});
    else if (!busAnswers_)
        agentHint.setStringValue(
            text("The session bus does not answer, so Zarvil cannot be reached."));
    else if (launching)
        agentHint.setStringValue(text("Launching it…"));
    else if (!installed_)
        agentHint.setStringValue(text("Zarvil is not installed."));
    else
        agentHint.setStringValue(text("Launch it to see your devices and change the settings."));
}

void Guidance::showConnected() {
    if (!manyDevicesChange_)
        showCount(connectedCount, outlets_.arrayController);
}

void Guidance::showWatched() {
    if (manyDevicesChange_)
        return;
    showCount(watchedCount, outlets_.savedArrayController);
    // It counts them only then.
    if (isProtectionOn(outlets_))
        showStatus();
}

void Guidance::showCount(TextField& field, const ArrayController& list) {
    field.setHidden(list.empty());
    field.setIntegerValue(static_cast<std::int64_t>(list.arrangedObjects().size()));
    devicesHint.setHidden(outlets_.arrayController.empty() &&
                          outlets_.savedArrayController.empty());
}

void Guidance::showDelayHint() {
    const bool active = isInterfaceActive(outlets_);
    delayHint.setEnabled(active);
    const bool fixed = active && !outlets_.shutdownDelayText.isEnabled() &&
                       outlets_.showShutdownMessage.isOn() &&
                       outlets_.hideShutdownMessageButton.isOn();
    if (fixed)
        delayHint.setStringValue(text("Cannot be changed while the warning hides itself."));
    else if (outlets_.toggleMinSec.isOn())
        delayHint.setStringValue(text("Minutes from the power failure. Return stores the number."));
    else
        delayHint.setStringValue(text("Seconds from the power failure. Return stores the number."));
}

void Guidance::showTest() {
    const bool active = isInterfaceActive(outlets_);
    const bool off = !outlets_.testSettingsButton.isEnabled() && !isProtectionOn(outlets_);
    testHint.setEnabled(active);
    turn(testIndicator, active && testing_);
    if (active && testing_)
        testHint.setStringValue(text("A test is running. Nothing is shut down."));
    else if (active && off)
        testHint.setStringValue(text("Switch the protection on to test it."));
    else if (active && testEnded_)
        testHint.setStringValue(text("The test has ended. Nothing was shut down."));
    else
        testHint.setStringValue(text("Plays the whole sequence without shutting down."));
}

void Guidance::showWhatIsNotStored() {
    const bool absent = presence_ == Presence::Absent;
    connectMessageHint.setHidden(!absent);
    connectMessageHint.setStringValue(text(notStored));
    emailHint.setStringValue(text(absent ? notStored : acceptedAddress));
}

void Guidance::showLock() {
    const int state = outlets_.authView.authorizationState();
    const std::string reason = outlets_.authView.reasonProperty().get();
    lockSymbol.setSymbol(state == authorizationState::unlocked ? Symbol::LockOpen : Symbol::Lock);
    std::string line;
    if (state == authorizationState::unlocked)
        line = text("Administrator rights: unlocked");
    else if (state == authorizationState::locked && !missingAuthority_.empty())
        line = strings_.localizedString("Administrator rights: %1 missing", {missingAuthority_});
    else if (state == authorizationState::locked)
        line = text("Administrator rights: locked");
    else
        line = text("Administrator rights: checking");
    line += separator;
    line += lockClicked_ && !reason.empty() ? reason : text("not needed for any setting here");
    lockLine.setStringValue(line);
}

} // namespace zarvil
