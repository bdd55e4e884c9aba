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

/// Equal for the same device; defined for incomplete records too, so that they are found again.
std::size_t identityHash(const Dictionary& device) {
    std::size_t hash = 0;
    for (const std::string_view key : identityKeys) {
        constexpr std::size_t multiplier = 0x9e3779b97f4a7c15U; // 2^64 divided by the golden ratio
        const std::string* text = device.stringForKey(key);
        hash = hash * multiplier + (text ? std::hash<std::string_view>{}(*text) : 0);
    }
    return hash;
}

} // namespace

DeviceList::DeviceList(const ArrayController& followed)
    : followedChanges_(
          followed.observe([this](const ListChange& change) { contentDidChange(change); })) {}

void DeviceList::add(Record record) {
    serials_.reset();
    auto& sameHash = positions_[identityHash(record->contents())];
    sameHash.push_back(records_.insert(records_.end(), std::move(record)));
}

void DeviceList::remove(const Record& record) {
    const auto listed = positions_.find(identityHash(record->contents()));
    if (listed == positions_.end())
        return;
    auto& sameHash = listed->second;
    const auto found = std::ranges::find_if(
        sameHash, [&record](Position position) { return *position == record; });
    if (found == sameHash.end())
        return;
    serials_.reset();
    const Position position = *found;
    sameHash.erase(found);
    if (sameHash.empty())
        positions_.erase(listed);
    records_.erase(position);
}

void DeviceList::clear() {
    serials_.reset();
    positions_.clear();
    records_.clear();
}

Record DeviceList::firstSameDevice(const Dictionary& device) const {
    // Spares an incomplete device the comparison with all the incomplete ones that share its hash.
    if (!hasIdentity(device))
        return nullptr;
    const auto listed = positions_.find(identityHash(device));
    if (listed == positions_.end())
        return nullptr;
    for (const Position position : listed->second) {
        if (isSameDevice((*position)->contents(), device))
            return *position;
    }
    return nullptr;
}

bool DeviceList::containsSerial(const Value& serial) const {
    if (!serials_)
        collectSerials();
    return serials_->contains(serial);
}

void DeviceList::collectSerials() const {
    serials_.emplace();
    for (const Record& record : records_) {
        if (const Value* serial = record->contents().objectForKey(payload::deviceSerial))
            serials_->insert(*serial);
    }
}

void DeviceList::contentDidChange(const ListChange& change) {
    switch (change.kind) {
    case ListChange::Kind::Inserted:
        add(change.record);
        break;
    case ListChange::Kind::Removed:
        remove(change.record);
        break;
    case ListChange::Kind::Cleared:
        clear();
        break;
    }
}

} // namespace zarvil
