#include "agent/check/Rules.h"

#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil::check {

namespace {

bool isDeviceRecord(const Value& value) {
    const auto* record = value.as<Dictionary>();
    if (!record)
        return false;
    const std::string* serial = record->stringForKey(payload::deviceSerial);
    return record->stringForKey(payload::deviceName) &&
           record->stringForKey(payload::deviceVendor) && serial && !serial->empty();
}

Dictionary testDevice(std::string_view name) {
    return Dictionary{{std::string(payload::deviceName), name},
                      {std::string(payload::deviceVendor), "zarvil-check-agent"},
                      {std::string(payload::deviceSerial), payload::unknownSerial},
                      {"ofTheAgentsOwn", Array{Value(7), Value("kept")}}};
}

Message about(std::string_view name, const Dictionary& device) {
    return {name, Dictionary{{std::string(payload::device), device}}};
}

std::size_t countOf(const Array& devices, const Dictionary& device) {
    return static_cast<std::size_t>(std::ranges::count(devices, Value(device)));
}

} // namespace

void Rules::listedDevices(const Answer& answer) {
    QStringList wrong;
    for (const std::string_view list :
         {message::allSavedDevices, message::allConnectedDevices, message::allDevices}) {
        const Dictionary* payload = answer.payloadOf(list);
        if (!payload || !payload->arrayForKey(payload::devices) ||
            !std::ranges::all_of(answer.devices(list), isDeviceRecord))
            wrong << quoted(list);
    }
    tell("lists devices as records with a name, a vendor and a serial number", wrong.join(", "));
    const bool isSame =
        answer.devices(message::allConnectedDevices) == answer.devices(message::allDevices);
    tell("sends the same devices as connected and as all",
         isSame ? QString() : QStringLiteral("the lists differ"));
}

void Rules::saving() {
    const Dictionary device = testDevice("Test device");
    const Dictionary other = testDevice("TEST DEVICE");
    const auto saved = [this](const Dictionary& record) {
        return countOf(ask().devices(message::allSavedDevices), record);
    };
    const std::size_t moment = agent_.heard().size();
    agent_.send(about(message::addedSaveItem, device));
    tell("saves a device on ZVAddedSaveItem and keeps its record unchanged",
         saved(device) == 1 ? QString() : QStringLiteral("it is not among the saved ones"));
    tell("does not report back what it was told to save",
         agent_.countSince(moment, message::newSavedDevice) == 0
             ? QString()
             : QStringLiteral("ZVNewSavedDevice came"));
    agent_.send(about(message::saveItemRemoved, other));
    tell("tells devices apart by letter case",
         saved(device) == 1 ? QString() : QStringLiteral("another one's removal removed it"));
    agent_.send(about(message::saveItemRemoved, device));
    tell("forgets a device on ZVSaveItemRemoved",
         saved(device) == 0 ? QString() : QStringLiteral("it is still saved"));
    savingConnected();
}

void Rules::savingConnected() {
    constexpr std::string_view rule = "lists a connected device as connected while it is saved too";
    const Answer before = ask();
    const Array connected = before.devices(message::allConnectedDevices);
    const Array saved = before.devices(message::allSavedDevices);
    const auto unsaved = std::ranges::find_if(connected, [&](const Value& device) {
        return isDeviceRecord(device) && countOf(saved, *device.as<Dictionary>()) == 0;
    });
    if (unsaved == connected.end()) {
        skip(rule);
        return;
    }
    const Dictionary& device = *unsaved->as<Dictionary>();
    agent_.send(about(message::addedSaveItem, device));
    const Array during = ask().devices(message::allConnectedDevices);
    tell(rule, countOf(during, device) > 0 ? QString() : QStringLiteral("it is gone from there"));
    agent_.send(about(message::saveItemRemoved, device));
}

} // namespace zarvil::check
