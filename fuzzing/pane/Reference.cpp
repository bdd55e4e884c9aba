#include "Reference.h"

#include "protocol/Messages.h"
#include "protocol/Numbers.h"
#include "protocol/Settings.h"
#include "scripts/ScriptFile.h"

#include <algorithm>
#include <regex>

namespace zarvil::fuzz {

namespace {

constexpr double dim = static_cast<double>(0.3F);

bool equalTexts(const Dictionary& left, const Dictionary& right, std::string_view key) {
    const std::string* text = left.stringForKey(key);
    const std::string* other = right.stringForKey(key);
    return text && other && *text == *other;
}

bool isSameDevice(const Dictionary& left, const Dictionary& right) {
    return equalTexts(left, right, "DeviceName") && equalTexts(left, right, "DeviceVendor") &&
           equalTexts(left, right, "DeviceSerial");
}

/// This very device, else the first of equal contents, else the end.
std::vector<Reference::Listed>::iterator place(std::vector<Reference::Listed>& list,
                                               const Reference::Device& device) {
    const auto same = std::ranges::find(list, device, &Reference::Listed::device);
    if (same != list.end())
        return same;
    return std::ranges::find_if(list, [&](const auto& entry) { return *entry.device == *device; });
}

} // namespace

Reference::Reference(Platform& own, FileManager& files) : Outlets(own), files_(files) {
    visitOutlets(*this, [this](std::string_view, View& outlet) {
        if (auto* control = dynamic_cast<Control*>(&outlet))
            control->setTarget(this);
    });
}

void Reference::run(std::function<void()> call) {
    waiting_.push_back(std::move(call));
    if (!busy_ && !held_)
        drain();
}

void Reference::drain() {
    busy_ = true;
    while (!held_ && !waiting_.empty()) {
        const auto call = std::move(waiting_.front());
        waiting_.pop_front();
        call();
    }
    busy_ = false;
}

void Reference::start() {
    for (View* view : {static_cast<View*>(&connectedDevices), static_cast<View*>(&selectedDevices),
                       static_cast<View*>(&scriptsCollection), &pushBox})
        view->setAlphaValue(dim);
    post("ZVPrefsLoaded");
    pingDue_ = now_ + 3;
    shutdownDelayText.setEntryCheck([](std::string_view text) {
        return numbers::isUnsignedDecimal(text, ".") ? std::string() : std::string("refused");
    });
}

void Reference::receive(const Message& message) {
    run([this, message] { handle(message.name, &message); });
}

void Reference::receiveNothing(std::string_view name) {
    run([this, name = std::string(name)] { handle(name, nullptr); });
}

void Reference::handle(const std::string& name, const Message* message) {
    const Dictionary info = message ? message->info() : Dictionary();
    const bool hasInfo = message && message->userInfo;
    if (name == "ZVQuitPrefs")
        exits += isHostListed ? 2 : 1; // killed, then ended in any case
    else if (name == "ZVPingTest")
        appDidAnswer();
    else if (name == "ZVState2")
        stateChanged(info);
    else if (name == "ZVSavedPrefs")
        setupPrefs(info);
    else if (name == "ZVTestFinished") {
        testSettingsButton.setEnabled(state && !lostConnection);
        testing = false;
    } else if (name == "ZVPushValidationFinished")
        pushoverChecked(info.integerForKey("code"));
    else if (name == "ZVDeviceConnected") {
        appDidAnswer();
        if (hasInfo)
            addDevice(info);
    } else if (name == "ZVDeviceDisconnected") {
        appDidAnswer();
        removeDevice(info);
    } else if (name == "ZVAllSavedDevices") {
        saved.clear();
        forEachDevice(info, [this](const Dictionary& device) {
            addSaved(std::make_shared<const Dictionary>(device));
        });
    } else if (name == "ZVAllConnectedDevices")
        forEachDevice(info, [this](const Dictionary& device) { addDevice(device); });
    else if (name == "ZVAllDevices") {
        allConnected.clear();
        forEachDevice(info, [this](const Dictionary& device) {
            allConnected.push_back(std::make_shared<const Dictionary>(device));
        });
    } else if (const Dictionary* device = info.dictionaryForKey("device");
               name == "ZVNewSavedDevice" && device) {
        removeDevice(*device);
        addSaved(std::make_shared<const Dictionary>(*device));
    }
}

void Reference::linkChanged(LinkEvent event) {
    run([this, event] {
        if (event == LinkEvent::Down)
            appDidNotAnswer();
        if (event == LinkEvent::NewPeer) {
            lostConnection = true;
            appStatus();
        }
    });
}

void Reference::advance(double seconds) {
    const double end = now_ + seconds;
    while (true) {
        const bool ping = !timeoutDue_ || pingDue_ <= *timeoutDue_;
        const double due = ping ? pingDue_ : *timeoutDue_;
        if (due > end)
            break;
        now_ = due;
        if (ping) {
            pingDue_ += 3;
            if (!std::exchange(pingWaits_, true))
                run([this] {
                    pingWaits_ = false;
                    appStatus();
                });
            continue;
        }
        timeoutDue_.reset();
        timeoutWaits_ = true;
        run([this, fired = timeout_] {
            if (timeoutWaits_ && fired == timeout_)
                appDidNotAnswer();
        });
    }
    now_ = end;
}

void Reference::setSelected(bool selected) { observing_ = selected ? observing_ + 1 : 0; }

void Reference::edit(TextField& field, const std::string& text) {
    const bool changed = field.stringValue() != text;
    field.userDidEdit(text);
    if (!changed || observing_ == 0)
        return;
    if (&field == &scriptsTitle)
        run([this] {
            const std::string& title = scriptsTitle.stringValue();
            createNewScript.setEnabled(!title.empty() && !hasScript(title));
            titleChanged();
        });
    if (&field == &pushUserName)
        run([this] {
            pushValidationStatus.setHidden(true);
            pushValidate.setEnabled(!pushUserName.stringValue().empty());
        });
}

void Reference::perform(std::string_view action) { performAction(action, nullptr); }

void Reference::performAction(std::string_view action, Control* sender) {
    run([this, sender, name = std::string(action)] { act(name, sender); });
}

void Reference::act(const std::string& action, Control* sender) {
    const auto postState = [&](std::string_view key) {
        postSetting(key, static_cast<Button*>(sender)->isOn());
    };
    if (action == "launchApp:" || (action == "quitApp:" && !state)) {
        launchButton.setEnabled(false);
        ++launches;
    } else if (action == "quitApp:") {
        launchButton.setEnabled(false);
        post("ZVQuit");
    } else if (action == "toggleOnOff:")
        toggleOnOff(sender);
    else if (action == "toggleShowIcon:")
        postState("ShowStatusIcon");
    else if (action == "toggleMonoIcon:")
        postState("StatusIconMono");
    else if (action == "toggleForceQuit:")
        postState("UseForce");
    else if (action == "setShouldLaunchAtLogin:")
        postState("LaunchAtLogin");
    else if (action == "showFailNotifi:")
        postState("ShowFailNotifi");
    else if (action == "autoUpdates:")
        postState("SUEnableAutomaticChecks");
    else if (action == "toggleShowConnectedMessage:") {
        hideConnectMessage.setEnabled(showConnectMessage.isOn());
        postState("NewDeviceMessage");
    } else if (action == "toggleShowShutdownMessage:")
        showShutdownMessageChanged();
    else if (action == "setShutdownDelay:")
        sendDelay();
    else if (action == "toggleMinutesSeconds:")
        changeUnit();
    else if (action == "testShutdown:") {
        testing = true;
        testSettingsButton.setEnabled(false);
        post("ZVTestShutdown");
    } else if (action == "setUserEmail:") {
        static const std::regex pattern(R"([A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4})");
        if (std::regex_match(email.stringValue(), pattern))
            postSetting("EmailAddress", email.stringValue());
    } else if (action == "useEmailNotifications:")
        postState("UseEmailNotifi");
    else if (action == "usePushoverAction:")
        usePushoverChanged();
    else if (action == "setUserId:")
        sendText("PushUserId", pushUserName);
    else if (action == "setDeviceId:")
        sendText("PushDeviceId", pushDeviceName);
    else if (action == "validatePushover:")
        checkPushover();
    else if (action == "create:")
        createScript();
    else if (action == "useScripts:")
        useScriptsChanged();
    else if (action == "unistall:") {
        post("ZVQuit");
        ++exits;
    } else if (action == "viewLog:")
        post("ZVViewLog");
    else if (action == "checkForUpdates:")
        post("ZVCheckForUpdates");
    else if (action != "unistallAction:" && action != "uninstallSheetFinished:")
        ++opened;
}

void Reference::appStatus() {
    ++timeout_;
    timeoutWaits_ = false;
    timeoutDue_ = now_ + 2;
    post("ZVPing");
}

void Reference::appDidAnswer() {
    if (lostConnection) {
        lostConnection = false;
        saved.clear();
        connected.clear();
        allConnected.clear();
        post("ZVPrefsLoaded");
    }
    launchButton.setEnabled(true);
    timeoutDue_.reset();
    timeoutWaits_ = false;
    if (togglePowerButton.isEnabled())
        return;
    setInterfaceEnabled(true);
    togglePowerButton.setEnabled(true);
    notLaunchedDesc.setHidden(true);
    launchedDesc.setHidden(false);
    launchButton.setTitle("Quit Zarvil");
    launchButton.setAction("quitApp:");
    connectedDevices.setAlphaValue(1);
    selectedDevices.setAlphaValue(1);
}

void Reference::appDidNotAnswer() {
    lostConnection = true;
    launchButton.setEnabled(true);
    timeoutDue_.reset();
    timeoutWaits_ = false;
    if (!togglePowerButton.isEnabled())
        return;
    togglePowerButton.setState(0);
    state = false;
    onDesc.setHidden(true);
    offDesc.setHidden(false);
    saved.clear();
    connected.clear();
    setInterfaceEnabled(false);
    togglePowerButton.setEnabled(false);
    launchedDesc.setHidden(true);
    notLaunchedDesc.setHidden(false);
    launchButton.setTitle("Launch Zarvil");
    launchButton.setAction("launchApp:");
    connectedDevices.setAlphaValue(dim);
    selectedDevices.setAlphaValue(dim);
    pushIndicator.stopAnimation();
}

void Reference::stateChanged(const Dictionary& info) {
    appDidAnswer();
    if (info.boolForKey("state") != state)
        toggleOnOff(nullptr);
}

void Reference::toggleOnOff(Control* sender) {
    state = !state;
    if (!testing)
        testSettingsButton.setEnabled(state);
    if (sender != &togglePowerButton)
        togglePowerButton.setState(state ? 1 : 0);
    offDesc.setHidden(state);
    onDesc.setHidden(!state);
    sent.emplace_back("ZVState", Dictionary{{"state", state}});
}

void Reference::setInterfaceEnabled(bool enabled) {
    const bool on = enabled && !lostConnection;
    emailLabel.setAlphaValue(on ? 1 : 0.5);
    shutdownDelayLabel.setAlphaValue(on ? 1 : 0.5);
    uninstallButton.setEnabled(true);
    showIcon.setEnabled(on);
    monoIcon.setEnabled(on && showIcon.state() != 0);
    testSettingsButton.setEnabled(on && state && !testing);
    checkForUpdatesNow.setEnabled(on);
    checkForUpdates.setEnabled(on);
    launchAtLogin.setEnabled(on);
    shutdownDelayText.setEnabled(on);
    sendEmail.setEnabled(on);
    forceQuit.setEnabled(on);
    showShutdownMessage.setEnabled(on);
    viewLogButton.setEnabled(on);
    showFailureNotifi.setEnabled(on);
    toggleMinSec.setEnabled(on);
    usePushover.setEnabled(on);
    enablePushover(on && usePushover.state() != 0);
    pushBox.setAlphaValue(on && usePushover.state() != 0 ? 1 : dim);
    scriptsTitle.setEnabled(on && useScriptsButton.state() != 0);
    scriptsTitle.setStringValue("");
    createNewScript.setEnabled(false);
    if (on && useScriptsButton.state() == 1)
        loadScripts();
    else
        scripts.clear();
    scriptsCollection.setAlphaValue(on ? 1 : dim);
    useScriptsButton.setEnabled(on);
}

void Reference::enablePushover(bool enabled) {
    pushUserName.setEnabled(enabled);
    pushDeviceName.setEnabled(enabled);
    if (!enabled)
        pushValidate.setEnabled(false);
    else if (!pushUserName.stringValue().empty())
        pushValidate.setEnabled(true);
}

void Reference::setupPrefs(const Dictionary& p) {
    const auto show = [&p](Button& button, std::string_view key) {
        button.setState(p.boolForKey(key) ? 1 : 0);
    };
    show(launchAtLogin, "LaunchAtLogin");
    show(showIcon, "ShowStatusIcon");
    show(forceQuit, "UseForce");
    show(monoIcon, "StatusIconMono");
    show(showShutdownMessage, "ShutdownMessage");
    if (toggleMinSec.state() == 1)
        shutdownDelayText.setFloatValue(p.floatForKey("ShutdownDelay") / 60.0F);
    else
        shutdownDelayText.setIntegerValue(p.integerForKey("ShutdownDelay"));
    hideShutdownMessage.setEnabled(showShutdownMessage.state() != 0);
    show(usePushover, "UsePushover");
    const std::string* user = p.stringForKey("PushUserId");
    const std::string* device = p.stringForKey("PushDeviceId");
    if (user)
        pushUserName.setStringValue(*user);
    if (device)
        pushDeviceName.setStringValue(*device);
    const bool push = usePushover.state() == 1;
    pushBox.setAlphaValue(push ? 1 : dim);
    pushUserName.setEnabled(push);
    pushDeviceName.setEnabled(push);
    pushValidate.setEnabled(push && user);
    const std::string* address = p.stringForKey("EmailAddress");
    if (address && !address->empty())
        show(sendEmail, "UseEmailNotifi");
    email.setStringValue(address ? *address : "");
    show(hideShutdownMessageButton, "HideShutdownMessage");
    show(showFailureNotifi, "ShowFailNotifi");
    show(checkForUpdates, "SUEnableAutomaticChecks");
    testing = p.boolForKey("Testing");
    testSettingsButton.setEnabled(!testing);
    show(useScriptsButton, "UseScripts");
    scriptsCollection.setAlphaValue(useScriptsButton.state() == 1 ? 1 : dim);
    scriptsTitle.setEnabled(useScriptsButton.state() == 1);
    createNewScript.setEnabled(false);
    scriptsTitle.setStringValue("");
    lostConnection = false;
}

void Reference::showShutdownMessageChanged() {
    const bool on = showShutdownMessage.state() != 0;
    const bool hide = hideShutdownMessageButton.state() != 0;
    hideShutdownMessage.setEnabled(on && hide);
    shutdownDelayText.setEnabled(!on || !hide);
    hideShutdownMessageButton.setEnabled(on);
    postSetting("ShutdownMessage", on);
}

void Reference::sendDelay() {
    std::int64_t seconds = shutdownDelayText.integerValue();
    if (toggleMinSec.state() == 1)
        seconds = numbers::truncated(
            double{numbers::narrowed(double{shutdownDelayText.floatValue() * 60.0F})});
    postSetting("ShutdownDelay", seconds);
}

void Reference::changeUnit() {
    if (toggleMinSec.state() == 1) {
        toggleMinSec.setTitle("minutes");
        shutdownDelayText.setIntegerValue(numbers::truncated(
            double{static_cast<float>(shutdownDelayText.integerValue()) / 60.0F}));
        return;
    }
    shutdownDelayText.setIntegerValue(numbers::truncated(
        double{numbers::narrowed(double{shutdownDelayText.floatValue() * 60.0F})}));
    toggleMinSec.setTitle("seconds");
}

void Reference::usePushoverChanged() {
    const bool on = usePushover.state() != 0;
    postSetting("UsePushover", on);
    enablePushover(on);
    pushBox.setAlphaValue(on ? 1 : dim);
}

void Reference::sendText(std::string_view key, const TextField& field) {
    if (!field.stringValue().empty())
        postSetting(key, field.stringValue());
}

void Reference::checkPushover() {
    const std::string& user = pushUserName.stringValue();
    const std::string& device = pushDeviceName.stringValue();
    if (user.empty()) {
        pushoverChecked(2);
        return;
    }
    pushUserName.setEnabled(false);
    pushDeviceName.setEnabled(false);
    pushBox.setAlphaValue(dim);
    pushIndicator.startAnimation();
    pushValidate.setEnabled(false);
    sendText("PushUserId", pushUserName);
    sendText("PushDeviceId", pushDeviceName);
    Dictionary request{{"userId", user},
                       {"messageTitle", "test"},
                       {"messageText", "somemessage"},
                       {"validate", true}};
    if (!device.empty())
        request.setObject("deviceId", device);
    sent.emplace_back("ZVValidatePushover", request);
}

void Reference::pushoverChecked(std::int64_t code) {
    pushUserName.setEnabled(true);
    pushDeviceName.setEnabled(true);
    pushValidate.setEnabled(true);
    pushBox.setAlphaValue(1);
    pushIndicator.stopAnimation();
    std::string_view text = "Unknow error!";
    if (code == 0)
        text = "Settings are valid!";
    else if (code == 1)
        text = "Connection timeout! Check your Internet connection!";
    else if (code == 2)
        text = "Invalid settings! Check your User ID and Device ID(if any)";
    if (code != 0 && code != 1) {
        postSetting("PushUserId", "");
        postSetting("PushDeviceId", "");
    }
    pushValidationStatus.setStringValue(text);
    pushValidationStatus.setHidden(false);
}

void Reference::loadScripts() {
    const std::string folder = files_.expandingTilde("~/Library/Zarvil Scripts");
    if (files_.kindOfItem(folder) != FileKind::Directory) {
        ++alerts; // the folder is never missing without standing in its own way
        return;
    }
    for (const std::string& name : files_.visibleContentsOfDirectory(folder))
        scripts.push_back(name.substr(0, name.rfind('.')));
}

bool Reference::hasScript(std::string_view title) const {
    return std::ranges::find(scripts, title) != scripts.end();
}

void Reference::titleChanged() {
    scriptsTitle.setFault(
        hasScript(scriptsTitle.stringValue()) ? "There is a script of this title already." : "");
}

void Reference::createScript() {
    const std::string title = scriptsTitle.stringValue();
    if (title.empty() || hasScript(title)) {
        createNewScript.setEnabled(false);
        titleChanged();
        return;
    }
    // The pane has done so already, and once more does no harm: it fails as often.
    if (files_.writeText("", script::filePath(files_, title), Atomicity::Direct)) {
        ++alerts;
        return;
    }
    scripts.push_back(title);
    scriptsTitle.setStringValue("");
    createNewScript.setEnabled(false);
}

void Reference::useScriptsChanged() {
    const bool on = useScriptsButton.state() != 0;
    if (on) {
        scriptsCollection.setAlphaValue(1);
        loadScripts();
    } else {
        scriptsTitle.setStringValue("");
        scriptsCollection.setAlphaValue(dim);
        scripts.clear();
    }
    scriptsTitle.setEnabled(on);
    createNewScript.setEnabled(false);
    postSetting("UseScripts", on);
}

void Reference::removeScript(std::size_t index) {
    run([this, index] {
        scripts.erase(scripts.begin() + static_cast<std::ptrdiff_t>(index));
        titleChanged();
    });
}

void Reference::runScript(bool succeeds, bool lasts) {
    run([this, succeeds, lasts] {
        held_ = lasts;
        if (!lasts && !succeeds)
            ++alerts;
    });
}

void Reference::scriptEnds(bool succeeds) {
    if (!succeeds)
        ++alerts;
    held_ = false;
    drain();
}

void Reference::forEachDevice(const Dictionary& info,
                              const std::function<void(const Dictionary&)>& call) {
    if (const Array* devices = info.arrayForKey("devices"))
        for (const Value& device : *devices)
            if (const auto* record = device.as<Dictionary>())
                call(*record);
}

void Reference::addDevice(const Dictionary& record) {
    const auto device = std::make_shared<const Dictionary>(record);
    allConnected.push_back(device);
    for (const Listed& listed : saved)
        if (isSameDevice(*listed.device, record))
            return;
    connected.push_back({device});
}

void Reference::removeDevice(const Dictionary& record) {
    const auto all = std::ranges::find_if(
        allConnected, [&](const Device& device) { return isSameDevice(*device, record); });
    if (all != allConnected.end())
        allConnected.erase(all);
    const auto shown = std::ranges::find_if(
        connected, [&](const Listed& listed) { return isSameDevice(*listed.device, record); });
    if (shown != connected.end())
        connected.erase(shown);
}

void Reference::addSaved(const Device& device) {
    saved.push_back({device});
    std::ranges::find_if(saved, [&](const Listed& listed) {
        return *listed.device == *device;
    })->tick = 1;
}

void Reference::tick(CollectionView& list, std::size_t index) {
    const bool inSaved = &list == &selectedDevices;
    Listed& listed = (inSaved ? saved : connected).at(index);
    listed.tick = listed.tick == 0 ? 1 : 0;
    run([this, device = listed.device, watch = listed.tick != 0] { tickNow(device, watch); });
}

void Reference::tickNow(const Device& device, bool watch) {
    if (watch) {
        if (const auto listed = place(connected, device); listed != connected.end())
            connected.erase(listed);
        addSaved(device);
    } else {
        const Value* serial = device->objectForKey("DeviceSerial");
        const bool known = serial && *serial != Value("N/A") &&
                           std::ranges::any_of(allConnected, [&](const Device& there) {
                               const Value* other = there->objectForKey("DeviceSerial");
                               return other && *other == *serial;
                           });
        if (known)
            connected.push_back({device});
        if (const auto listed = place(saved, device); listed != saved.end())
            saved.erase(listed);
    }
    sent.emplace_back(watch ? "ZVAddedSaveItem" : "ZVSaveItemRemoved",
                      Dictionary{{"device", *device}});
}

void Reference::postSetting(std::string_view key, Value value) {
    sent.emplace_back("ZVPrefsChanged",
                      Dictionary{{"prefKey", key}, {"prefObj", std::move(value)}});
}

} // namespace zarvil::fuzz
