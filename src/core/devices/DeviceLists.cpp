#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil {

namespace {

constexpr unsigned long saved = 1;

/// Calls back for each device record under "devices", in order. What is no record is passed over,
/// and so is everything when there is no array.
template <typename Callback>
void forEachDevice(const Message* message, Callback&& callback) {
    const Array* devices = infoOf(message).arrayForKey(payload::devices);
    if (!devices)
        return;
    for (const Value& entry : *devices) {
        if (const auto* device = entry.as<Dictionary>())
            callback(*device);
    }
}

Message deviceMessage(std::string_view name, const Record& record) {
    return {name, Dictionary{{std::string(payload::device), record->contents()}}};
}

} // namespace

void Zarvil_Preferences::deviceConnected(const Message* message) {
    appDidAnswer(nullptr);
    if (!message || !message->userInfo)
        return;
    addDevice(makeRecord(*message->userInfo));
    guidance.deviceDidConnect(*message->userInfo);
}

void Zarvil_Preferences::deviceDisconnected(const Message* message) {
    appDidAnswer(nullptr);
    removeDevice(infoOf(message));
    if (message && message->userInfo)
        guidance.deviceDidDisconnect(*message->userInfo);
}

void Zarvil_Preferences::allSavedDevices(const Message* message) {
    guidance.whileDevicesChange([this, message] {
        savedArrayController.removeAllArrangedObjects();
        forEachDevice(message,
                      [this](const Dictionary& device) { addSavedDevice(makeRecord(device)); });
    });
}

// Adds to the lists that stand; a reconnection is what empties them.
void Zarvil_Preferences::allConnectedDevices(const Message* message) {
    devices.clear();
    guidance.whileDevicesChange([this, message] {
        forEachDevice(message, [this](const Dictionary& device) { addDevice(makeRecord(device)); });
    });
}

// The displayed lists keep what they show, on purpose.
void Zarvil_Preferences::allDevices(const Message* message) {
    allConnectedDevices_.clear();
    forEachDevice(message, [this](const Dictionary& device) {
        allConnectedDevices_.add(makeRecord(device));
    });
}

void Zarvil_Preferences::newSavedDevice(const Message* message) {
    const Dictionary* device = infoOf(message).dictionaryForKey(payload::device);
    if (!device)
        return;
    removeDevice(*device);
    addSavedDevice(makeRecord(*device));
}

void Zarvil_Preferences::addDevice(const Record& record) {
    allConnectedDevices_.add(record);
    if (!savedArrayController.empty() &&
        firstSameDevice(savedArrayController, DeviceIdentity(record->contents())))
        return;
    arrayController.addObject(record);
    arrayController.rearrangeObjects();
}

// A watched device stays in its list, ticked, while it is unplugged.
void Zarvil_Preferences::removeDevice(const Dictionary& device) {
    const DeviceIdentity identity(device);
    allConnectedDevices_.removeSameDevice(identity);
    removeFirstSameDevice(arrayController, identity);
    arrayController.rearrangeObjects();
}

void Zarvil_Preferences::addSavedDevice(const Record& record) {
    savedArrayController.addObject(record);
    // The first of equal records gets the tick, even if this one stands behind it.
    if (const auto item = selectedDevices.itemOfObjectAs<ZVCollectionItem>(record))
        item->setState(saved);
}

bool Zarvil_Preferences::staysConnected(const Dictionary& device) const {
    // The serial alone decides here, unlike at a device's arrival and departure.
    const Value* serial = device.objectForKey(payload::deviceSerial);
    if (serial && *serial != Value(payload::unknownSerial) &&
        allConnectedDevices_.containsSerial(*serial))
        return true;
    return std::ranges::any_of(
        devices, [&device](const Record& known) { return known->contents() == device; });
}

void Zarvil_Preferences::stateDidChange(ZVCollectionItem& item) {
    // A copy of the record, for the item goes with its row in the course of this.
    if (item.representedObject())
        platform_.handlers.run([this, record = item.representedObject(),
                                watch = item.state() != 0] { moveDevice(record, watch); });
}

void Zarvil_Preferences::moveDevice(const Record& record, bool watch) {
    if (watch) {
        arrayController.removeObject(record);
        addSavedDevice(record);
        platform_.messages.post(deviceMessage(message::addedSaveItem, record));
        return;
    }
    if (staysConnected(record->contents()))
        arrayController.addObject(record);
    savedArrayController.removeObject(record);
    platform_.messages.post(deviceMessage(message::saveItemRemoved, record));
}

} // namespace zarvil
