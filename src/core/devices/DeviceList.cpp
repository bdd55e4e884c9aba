#include "devices/DeviceList.h"

#include "protocol/Messages.h"

#include <algorithm>
#include <array>

namespace zarvil {

namespace {

/// Name, vendor and serial of a device; null where one is missing or is no string.
using Identity = std::array<const std::string*, 3>;

Identity identityOf(const Dictionary& device) {
    return {device.stringForKey(payload::deviceName), device.stringForKey(payload::deviceVendor),
            device.stringForKey(payload::deviceSerial)};
}

bool isComplete(const Identity& identity) {
    return std::ranges::none_of(identity, [](const std::string* text) { return text == nullptr; });
}

std::size_t identityHash(const Dictionary& device, const Identity& identity) {
    if (!isComplete(identity))
        return contentHash(device);
    std::size_t hash = 0;
    for (const std::string* text : identity) {
        constexpr std::size_t multiplier = 0x9e3779b97f4a7c15U; // 2^64 divided by the golden ratio
        hash = hash * multiplier + std::hash<std::string>{}(*text);
    }
    return hash;
}

} // namespace

std::size_t deviceHash(const MutableRecord& device) {
    return identityHash(device.contents(), identityOf(device.contents()));
}

Record firstSameDevice(const ArrayController& list, const Dictionary& device) {
    const Identity identity = identityOf(device);
    if (list.empty() || !isComplete(identity))
        return nullptr;
    return list.firstOfHash(identityHash(device, identity), [&identity](const Record& record) {
        return std::ranges::equal(identityOf(record->contents()), identity,
                                  [](const std::string* left, const std::string* right) {
                                      return left && *left == *right;
                                  });
    });
}

void DeviceList::add(const Record& record) {
    serials_.reset();
    list_.addObject(record);
}

void DeviceList::removeSameDevice(const Dictionary& device) {
    const Record same = firstSameDevice(list_, device);
    if (!same)
        return;
    serials_.reset();
    list_.removeObject(same);
}

void DeviceList::clear() {
    serials_.reset();
    list_.removeAllArrangedObjects();
}

bool DeviceList::containsSerial(const Value& serial) const {
    if (!serials_) {
        serials_.emplace();
        for (const Record& record : list_.arrangedObjects())
            if (const Value* listed = record->contents().objectForKey(payload::deviceSerial))
                serials_->insert(*listed);
    }
    return serials_->contains(serial);
}

} // namespace zarvil
