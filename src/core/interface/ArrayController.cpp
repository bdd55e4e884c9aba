#include "interface/ArrayController.h"

namespace zarvil {

ArrayController::Entry::Entry(ArrayController& list, RecordSerial ownSerial, Record listed)
    : owner(list), serial(ownSerial), hash(list.hash_(*listed)), record(std::move(listed)) {
    record->addWatcher(*this);
}

void ArrayController::addObject(Record record) {
    auto added = std::make_unique<Entry>(*this, nextSerial_++, std::move(record));
    Entry& entry = *added;
    list(entry);
    entries_.insert(entries_.size(), std::move(added));
    observers_.notify({ListChange::Kind::Inserted, entry.serial, entry.record});
}

void ArrayController::removeObject(const Record& record) {
    Entry* listed =
        firstEntry(hash_(*record), [&](const Record& candidate) { return candidate == record; });
    if (!listed)
        listed = firstEqual(record);
    if (!listed)
        return;
    unlist(*listed);
    const auto removed = entries_.take(*listed);
    observers_.notify({ListChange::Kind::Removed, removed->serial, removed->record});
}

void ArrayController::removeAllArrangedObjects() {
    if (entries_.empty())
        return;
    firstOfHash_.clear();
    entries_.clear();
    observers_.notify({ListChange::Kind::Cleared, 0, nullptr});
}

std::optional<RecordSerial> ArrayController::serialOfObject(const Record& record) const {
    const Entry* equal = firstEqual(record);
    return equal ? std::optional(equal->serial) : std::nullopt;
}

std::optional<std::size_t> ArrayController::indexOfObject(const Record& record) const {
    const Entry* equal = firstEqual(record);
    return equal ? std::optional(entries_.indexOf(*equal)) : std::nullopt;
}

Subscription ArrayController::observe(Observer observer) const {
    for (const auto& entry : entries_)
        observer({ListChange::Kind::Inserted, entry.serial, entry.record});
    return observers_.add(std::move(observer));
}

ArrayController::Entry* ArrayController::firstEqual(const Record& record) const {
    return firstEntry(hash_(*record), [&](const Record& candidate) {
        return candidate == record || candidate->contents() == record->contents();
    });
}

void ArrayController::recordWasEdited(Entry& entry) {
    unlist(entry);
    entry.hash = hash_(*entry.record);
    list(entry);
    observers_.notify({ListChange::Kind::Edited, entry.serial, entry.record});
}

void ArrayController::list(Entry& entry) {
    entry.before = entry.after = &entry;
    Entry* const first = firstOfHash_.find(entry.hash);
    if (!first) {
        firstOfHash_.insert(entry);
        return;
    }
    Entry* smaller = first->before; // a new one follows the last
    while (smaller != first && smaller->serial > entry.serial)
        smaller = smaller->before;
    if (smaller->serial > entry.serial) {
        smaller = first->before;
        firstOfHash_.replace(*first, entry);
    }
    entry.before = smaller;
    entry.after = smaller->after;
    entry.before->after = entry.after->before = &entry;
}

void ArrayController::unlist(Entry& entry) {
    if (entry.after == &entry)
        firstOfHash_.erase(entry);
    else if (firstOfHash_.find(entry.hash) == &entry)
        firstOfHash_.replace(entry, *entry.after);
    entry.before->after = entry.after;
    entry.after->before = entry.before;
}

} // namespace zarvil
