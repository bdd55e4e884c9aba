#include "agent/Agent.h"

#include "agent/DeviceRecord.h"
#include "agent/PushoverForm.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"

#include <QTimer>

#include <chrono>

namespace zarvil::agent {

namespace {

constexpr std::chrono::seconds writeAgainAfter{1};

Dictionary withEntry(std::string_view key, Value value) {
    Dictionary info;
    info.setObject(key, std::move(value));
    return info;
}

} // namespace

Agent::Agent(Parts parts) : parts_(std::move(parts)) {
    answer(message::prefsLoaded, &Agent::prefsLoaded);
    answer(message::ping, &Agent::pinged);
    answer(message::quit, &Agent::quitAsked);
    answer(message::setState, &Agent::stateSet);
    answer(message::prefsChanged, &Agent::prefsChanged);
    answer(message::testShutdown, &Agent::testAsked);
    answer(message::viewLog, &Agent::logAsked);
    answer(message::checkForUpdates, &Agent::updateCheckAsked);
    answer(message::addedSaveItem, &Agent::saveAsked);
    answer(message::saveItemRemoved, &Agent::forgetAsked);
    answer(message::validatePushover, &Agent::pushCheckAsked);
}

Agent::~Agent() { parts_.settings.write(); }

void Agent::answer(std::string_view name, void (Agent::*handler)(const Dictionary&)) {
    subscriptions_.push_back(parts_.messages.addObserver(
        name, [this, handler](const Message& message) { (this->*handler)(message.info()); }));
}

// The settings go first: they tell the pane that it is connected, so that no answer after them
// makes it ask again. The pane adds the connected devices to those it knows already; the list of
// all devices, which replaces them, puts that right and so goes last.
void Agent::prefsLoaded(const Dictionary& /*info*/) {
    parts_.log.note(QStringLiteral("Sending settings and devices"));
    Dictionary settings = parts_.settings.settings();
    settings.setObject(setting::testing, testing_);
    send({message::savedPrefs, std::move(settings)});
    send({message::allSavedDevices, withEntry(payload::devices, parts_.settings.savedDevices())});
    send({message::allConnectedDevices, withEntry(payload::devices, connected_)});
    send({message::allDevices, withEntry(payload::devices, connected_)});
    send({message::stateChanged, withEntry(payload::state, parts_.settings.isProtecting())});
}

void Agent::pinged(const Dictionary& /*info*/) {
    if (!muted_)
        send(Message(message::pingAnswer));
}

void Agent::quitAsked(const Dictionary& /*info*/) {
    parts_.log.note(QStringLiteral("Asked to quit"));
    parts_.quit();
}

// Not reported back: to a pane whose switch has moved on meanwhile a report would look like a
// change by the agent, and the two would chase each other.
void Agent::stateSet(const Dictionary& info) {
    const bool protecting = info.boolForKey(payload::state);
    parts_.log.note(protecting ? QStringLiteral("Protection switched on")
                               : QStringLiteral("Protection switched off"));
    parts_.settings.setProtecting(protecting);
    writeSettingsSoon();
}

void Agent::prefsChanged(const Dictionary& info) {
    const std::string* key = info.stringForKey(payload::prefKey);
    const Value* value = info.objectForKey(payload::prefObj);
    const QString name = key ? QString::fromUtf8(*key) : QStringLiteral("without a key");
    if (key && value && parts_.settings.store(*key, *value)) {
        parts_.log.note("Stored the setting " + name);
        writeSettingsSoon();
    } else {
        parts_.log.problem("Dropped the setting " + name + ": unknown, or of a wrong type");
    }
}

void Agent::testAsked(const Dictionary& /*info*/) {
    if (testing_) {
        parts_.log.note(QStringLiteral("A test of the shutdown is running already"));
        return;
    }
    parts_.log.note(QStringLiteral("Playing a test of the shutdown"));
    testing_ = true;
    QTimer::singleShot(testDuration_, this, [this] { finishTest(); });
}

void Agent::finishTest() {
    testing_ = false;
    parts_.log.note(QStringLiteral("The test of the shutdown is over"));
    send(Message(message::testFinished));
}

void Agent::logAsked(const Dictionary& /*info*/) {
    parts_.log.note(QStringLiteral("Showing the log"));
    parts_.open(parts_.log.path());
}

void Agent::updateCheckAsked(const Dictionary& /*info*/) {
    parts_.log.note(QStringLiteral("Asked to check for updates; a stand-in has none"));
}

void Agent::saveAsked(const Dictionary& info) {
    const Dictionary* device = info.dictionaryForKey(payload::device);
    if (!device) {
        parts_.log.problem(QStringLiteral("Asked to save a device, but was given none"));
        return;
    }
    const bool added = parts_.settings.addSavedDevice(*device);
    parts_.log.note((added ? "Saved " : "Already saved: ") + QString::fromUtf8(describe(*device)));
    writeSettingsSoon();
}

void Agent::forgetAsked(const Dictionary& info) {
    const Dictionary* device = info.dictionaryForKey(payload::device);
    if (!device || !parts_.settings.removeSavedDevice(*device)) {
        parts_.log.problem(QStringLiteral("Asked to forget a device that is not saved"));
        return;
    }
    parts_.log.note("Forgot " + QString::fromUtf8(describe(*device)));
    writeSettingsSoon();
}

void Agent::pushCheckAsked(const Dictionary& info) {
    const std::int64_t code = verdict_.value_or(verdictByForm(info));
    parts_.log.note("Judged a Pushover check with code " + QString::number(code));
    send({message::pushValidationFinished, withEntry(payload::code, code)});
}

void Agent::deviceAppeared(const Dictionary& device) {
    parts_.log.note("Connected: " + QString::fromUtf8(describe(device)));
    connected_.emplace_back(device);
    send({message::deviceConnected, device});
}

bool Agent::deviceWent(const Dictionary& device) {
    const std::optional<Dictionary> gone = takeDevice(connected_, device);
    if (!gone)
        return false;
    parts_.log.note("Disconnected: " + QString::fromUtf8(describe(*gone)));
    send({message::deviceDisconnected, *gone});
    return true;
}

bool Agent::saveByItself(const Dictionary& device) {
    if (!parts_.settings.addSavedDevice(device))
        return false;
    writeSettingsSoon();
    send({message::newSavedDevice, withEntry(payload::device, device)});
    return true;
}

void Agent::setProtecting(bool protecting) {
    parts_.settings.setProtecting(protecting);
    writeSettingsSoon();
    send({message::stateChanged, withEntry(payload::state, protecting)});
}

void Agent::endHost() { send(Message(message::quitPrefs)); }

void Agent::send(Message message) {
    if (lateness_.count() == 0 && late_.empty()) {
        parts_.messages.post(std::move(message));
        return;
    }
    late_.push_back(std::move(message));
    QTimer::singleShot(lateness_, this, [this] { sendOldest(); });
}

void Agent::sendOldest() {
    const Message message = std::move(late_.front());
    late_.pop_front();
    parts_.messages.post(message);
}

// Once a turn of the event loop, so that a burst of changes is one write.
void Agent::writeSettingsSoon() {
    if (std::exchange(writePending_, true))
        return;
    QTimer::singleShot(0, this, [this] {
        writePending_ = false;
        if (!parts_.settings.write())
            QTimer::singleShot(writeAgainAfter, this, &Agent::writeSettingsSoon);
    });
}

} // namespace zarvil::agent
