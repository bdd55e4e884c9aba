#include "interface/ArrayController.h"

#include <algorithm>

namespace zarvil {

void ArrayController::addObject(Record record) {
    const Serial serial = nextSerial_++;
    const std::size_t hash = contentHash(record->contents());
    list(hash, serial);
    entries_.push_back({serial, hash, record->observeEdits([this, serial] { rehash(serial); })});
    records_.push_back(std::move(record));
    const ListChange change{ListChange::Kind::Inserted, records_.size() - 1, records_.back()};
    observers_.notify(change);
}

void ArrayController::removeObject(const Record& record) {
    if (const auto same = indexOfIdentity(record))
        removeAt(*same);
    else if (const auto equal = indexOfObject(record->contents()))
        removeAt(*equal);
}

void ArrayController::removeAllArrangedObjects() {
    if (records_.empty())
        return;
    records_.clear();
    entries_.clear();
    serialsByHash_.clear();
    observers_.notify({ListChange::Kind::Cleared, 0, nullptr});
}

std::optional<std::size_t> ArrayController::indexOfObject(const Dictionary& contents) const {
    const auto listed = serialsByHash_.find(contentHash(contents));
    if (listed == serialsByHash_.end())
        return std::nullopt;
    for (const Serial serial : listed->second) {
        const std::size_t index = indexOfSerial(serial);
        if (records_[index]->contents() == contents)
            return index;
    }
    return std::nullopt;
}

Subscription ArrayController::observe(Observer observer) const {
    for (std::size_t index = 0; index < records_.size(); ++index)
        observer({ListChange::Kind::Inserted, index, records_[index]});
    return observers_.add(std::move(observer));
}

std::size_t ArrayController::indexOfSerial(Serial serial) const {
    const auto found = std::ranges::lower_bound(entries_, serial, {}, &Entry::serial);
    return static_cast<std::size_t>(found - entries_.begin());
}

std::optional<std::size_t> ArrayController::indexOfIdentity(const Record& record) const {
    const auto listed = serialsByHash_.find(contentHash(record->contents()));
    if (listed == serialsByHash_.end())
        return std::nullopt;
    for (const Serial serial : listed->second) {
        const std::size_t index = indexOfSerial(serial);
        if (records_[index] == record)
            return index;
    }
    return std::nullopt;
}

void ArrayController::rehash(Serial serial) {
    const std::size_t index = indexOfSerial(serial);
    Entry& entry = entries_[index];
    unlist(entry);
    entry.hash = contentHash(records_[index]->contents());
    list(entry.hash, serial);
}

void ArrayController::list(std::size_t hash, Serial serial) {
    auto& serials = serialsByHash_[hash];
    serials.insert(std::ranges::upper_bound(serials, serial), serial);
}

void ArrayController::unlist(const Entry& entry) {
    const auto listed = serialsByHash_.find(entry.hash);
    auto& serials = listed->second;
    serials.erase(std::ranges::lower_bound(serials, entry.serial));
    if (serials.empty())
        serialsByHash_.erase(listed);
}

void ArrayController::removeAt(std::size_t index) {
    const auto offset = static_cast<std::ptrdiff_t>(index);
    const Record removed = records_[index];
    unlist(entries_[index]);
    entries_.erase(entries_.begin() + offset);
    records_.erase(records_.begin() + offset);
    observers_.notify({ListChange::Kind::Removed, index, removed});
}

} // namespace zarvil
