#include "interface/ArrayController.h"

namespace zarvil {

void ArrayController::addObject(Record record) {
    auto added = std::make_unique<Entry>(
        Entry{nextSerial_++, hash_(*record), std::move(record), Subscription()});
    Entry& entry = *added;
    entry.edits = entry.record->observeEdits([this, &entry] { recordWasEdited(entry); });
    list(entry);
    entries_.insert(entries_.size(), std::move(added));
    observers_.notify({ListChange::Kind::Inserted, entry.serial, entry.record});
}

void ArrayController::removeObject(const Record& record) {
    const Entry* listed =
        firstEntry(hash_(*record), [&](const Record& candidate) { return candidate == record; });
    if (!listed)
        listed = firstEqual(record);
    if (!listed)
        return;
    unlist(*listed);
    const auto removed = entries_.take(indexOf(*listed));
    observers_.notify({ListChange::Kind::Removed, removed->serial, removed->record});
}

void ArrayController::removeAllArrangedObjects() {
    if (entries_.empty())
        return;
    entriesByHash_.clear();
    entries_.clear();
    observers_.notify({ListChange::Kind::Cleared, 0, nullptr});
}

std::optional<std::size_t> ArrayController::indexOfObject(const Record& record) const {
    const Entry* equal = firstEqual(record);
    return equal ? std::optional(indexOf(*equal)) : std::nullopt;
}

Subscription ArrayController::observe(Observer observer) const {
    for (const auto& entry : entries_)
        observer({ListChange::Kind::Inserted, entry->serial, entry->record});
    return observers_.add(std::move(observer));
}

const ArrayController::Entry* ArrayController::firstEqual(const Record& record) const {
    return firstEntry(hash_(*record), [&](const Record& candidate) {
        return candidate == record || candidate->contents() == record->contents();
    });
}

std::size_t ArrayController::indexOf(const Entry& entry) const {
    return entries_.partitionPoint(
        [&entry](const auto& candidate) { return candidate->serial < entry.serial; });
}

void ArrayController::recordWasEdited(Entry& entry) {
    unlist(entry);
    entry.hash = hash_(*entry.record);
    list(entry);
    observers_.notify({ListChange::Kind::Edited, entry.serial, entry.record});
}

void ArrayController::list(Entry& entry) {
    auto& sameHash = entriesByHash_[entry.hash];
    sameHash.insert(std::ranges::upper_bound(sameHash, entry.serial, {}, &Entry::serial), &entry);
}

void ArrayController::unlist(const Entry& entry) {
    const auto listed = entriesByHash_.find(entry.hash);
    auto& sameHash = listed->second;
    sameHash.erase(std::ranges::lower_bound(sameHash, entry.serial, {}, &Entry::serial));
    if (sameHash.empty())
        entriesByHash_.erase(listed);
}

} // namespace zarvil
