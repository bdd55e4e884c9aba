#include "agent/DeviceRecord.h"

#include "protocol/Messages.h"

#include <algorithm>
#include <array>

namespace zarvil::agent {

namespace {

constexpr std::array identityKeys{payload::deviceName, payload::deviceVendor,
                                  payload::deviceSerial};

} // namespace

Dictionary deviceRecord(std::string_view name, std::string_view vendor, std::string_view serial) {
    Dictionary record;
    record.setObject(payload::deviceName, name);
    record.setObject(payload::deviceVendor, vendor);
    record.setObject(payload::deviceSerial, serial.empty() ? payload::unknownSerial : serial);
    return record;
}

bool isSameDevice(const Dictionary& left, const Dictionary& right) {
    return std::ranges::all_of(identityKeys, [&](std::string_view key) {
        const std::string* one = left.stringForKey(key);
        const std::string* other = right.stringForKey(key);
        return one && other && *one == *other;
    });
}

std::optional<Dictionary> takeDevice(Array& records, const Dictionary& device) {
    auto found = std::ranges::find(records, Value(device));
    if (found == records.end())
        found = std::ranges::find_if(records, [&](const Value& record) {
            const auto* dictionary = record.as<Dictionary>();
            return dictionary && isSameDevice(*dictionary, device);
        });
    if (found == records.end())
        return std::nullopt;
    const Dictionary taken = *found->as<Dictionary>();
    records.erase(found);
    return taken;
}

std::string describe(const Dictionary& device) {
    std::string text;
    for (const std::string_view key : identityKeys) {
        const std::string* part = device.stringForKey(key);
        text += (text.empty() ? "" : ", ") + (part ? *part : std::string("?"));
    }
    return text;
}

} // namespace zarvil::agent
