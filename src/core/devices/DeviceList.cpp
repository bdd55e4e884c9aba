#include "devices/DeviceList.h"

#include "protocol/Messages.h"

#include <algorithm>
#include <array>

namespace zarvil {

namespace {

constexpr std::array identityKeys{payload::deviceName, payload::deviceVendor,
                                  payload::deviceSerial};

bool hasIdentity(const Dictionary& device) {
    return std::ranges::all_of(identityKeys, [&device](std::string_view key) {
        return device.stringForKey(key) != nullptr;
    });
}

bool isSameDevice(const Dictionary& left, const Dictionary& right) {
    return std::ranges::all_of(identityKeys, [&left, &right](std::string_view key) {
        const std::string* text = left.stringForKey(key);
        const std::string* other = right.stringForKey(key);
        return text && other && *text == *other;
    });
}

std::size_t identityHash(const Dictionary& device) {
    if (!hasIdentity(device))
        return contentHash(device);
    std::size_t hash = 0;
    for (const std::string_view key : identityKeys) {
        constexpr std::size_t multiplier = 0x9e3779b97f4a7c15U; // 2^64 divided by the golden ratio
        hash = hash * multiplier + std::hash<std::string_view>{}(*device.stringForKey(key));
    }
    return hash;
}

} // namespace

std::size_t deviceHash(const MutableRecord& device) { return identityHash(device.contents()); }

Record firstSameDevice(const ArrayController& list, const Dictionary& device) {
    return list.firstOfHash(identityHash(device), [&device](const Record& record) {
        return isSameDevice(record->contents(), device);
    });
}

void DeviceList::add(const Record& record) {
    if (const Value* serial = record->contents().objectForKey(payload::deviceSerial))
        ++serials_[*serial];
    list_.addObject(record);
}

void DeviceList::removeSameDevice(const Dictionary& device) {
    const Record same = firstSameDevice(list_, device);
    if (!same)
        return;
    list_.removeObject(same);
    const auto serial = serials_.find(*device.objectForKey(payload::deviceSerial));
    if (--serial->second == 0)
        serials_.erase(serial);
}

void DeviceList::clear() {
    serials_.clear();
    list_.removeAllArrangedObjects();
}

bool DeviceList::containsSerial(const Value& serial) const { return serials_.contains(serial); }

} // namespace zarvil
