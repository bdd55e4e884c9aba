#include "devices/DeviceList.h"

#include "protocol/Messages.h"

#include <algorithm>

namespace zarvil {

DeviceIdentity::DeviceIdentity(const Dictionary& device) : texts_(textsOf(device)), hash_(0) {
    for (const std::string* text : texts_) {
        if (!text) {
            hash_ = contentHash(device);
            return;
        }
        constexpr std::size_t multiplier = 0x9e3779b97f4a7c15U; // 2^64 divided by the golden ratio
        hash_ = hash_ * multiplier + std::hash<std::string>{}(*text);
    }
}

bool DeviceIdentity::isOf(const Record& record) const {
    return std::ranges::equal(textsOf(record->contents()), texts_,
                              [](const std::string* left, const std::string* right) {
                                  return left && right && *left == *right;
                              });
}

DeviceIdentity::Texts DeviceIdentity::textsOf(const Dictionary& device) {
    return {device.stringForKey(payload::deviceName), device.stringForKey(payload::deviceVendor),
            device.stringForKey(payload::deviceSerial)};
}

std::size_t deviceHash(const MutableRecord& device) {
    return DeviceIdentity(device.contents()).hash();
}

Record firstSameDevice(const ArrayController& list, const DeviceIdentity& device) {
    return list.firstOfHash(device.hash(),
                            [&device](const Record& record) { return device.isOf(record); });
}

void removeFirstSameDevice(ArrayController& list, const DeviceIdentity& device) {
    list.removeFirstOfHash(device.hash(),
                           [&device](const Record& record) { return device.isOf(record); });
}

void DeviceList::add(const Record& record) {
    serials_.reset();
    list_.addObject(record);
}

void DeviceList::removeSameDevice(const DeviceIdentity& device) {
    serials_.reset();
    removeFirstSameDevice(list_, device);
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
