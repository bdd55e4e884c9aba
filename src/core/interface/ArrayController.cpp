#include "interface/ArrayController.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace zarvil {

const Record& ArrayController::ArrangedObjects::at(std::size_t index) const {
    if (index >= size())
        throw std::out_of_range("ArrangedObjects::at");
    return (*this)[index];
}

void ArrayController::addObject(Record record) {
    if (entries_.size() == lastOfHash_.size() / 2)
        tidy(2 * count_);
    const RecordSerial serial = nextSerial_++;
    entries_.push_back({record, serial, static_cast<std::uint32_t>(hash_(*record))});
    link(static_cast<Position>(entries_.size() - 1));
    ++count_;
    if (edits_ == Edits::Watched)
        record->addWatcher(*this);
    observers_.notify({ListChange::Kind::Inserted, serial, record});
}

void ArrayController::removeObject(const Record& record) {
    const Position listed =
        firstPosition(hash_(*record), [&](const Record& candidate) { return candidate == record; });
    remove(listed != none ? listed : firstEqual(record));
}

void ArrayController::removeAllArrangedObjects() {
    if (empty())
        return;
    stopWatching();
    entries_.clear();
    lastOfHash_.clear();
    count_ = 0;
    observers_.notify({ListChange::Kind::Cleared, 0, nullptr});
}

std::optional<RecordSerial> ArrayController::serialOfObject(const Record& record) const {
    const Position equal = firstEqual(record);
    return equal == none ? std::nullopt : std::optional(entries_[equal].serial);
}

std::optional<std::size_t> ArrayController::indexOfObject(const Record& record) const {
    const Position equal = firstEqual(record);
    if (equal == none || count_ == entries_.size())
        return equal == none ? std::nullopt : std::optional<std::size_t>(equal);
    return std::count_if(entries_.begin(), entries_.begin() + equal,
                         [](const Entry& entry) { return entry.record != nullptr; });
}

Subscription ArrayController::observe(Observer observer) const {
    for (const Entry& entry : entries_)
        if (entry.record)
            observer({ListChange::Kind::Inserted, entry.serial, entry.record});
    return observers_.add(std::move(observer));
}

ArrayController::Position ArrayController::firstEqual(const Record& record) const {
    return firstPosition(hash_(*record), [&](const Record& candidate) {
        return candidate == record || candidate->contents() == record->contents();
    });
}

const ArrayController::Entry& ArrayController::entryAt(std::size_t index) const {
    if (count_ == entries_.size())
        return entries_[index];
    auto entry = entries_.begin();
    while (!entry->record || index-- > 0)
        ++entry;
    return *entry;
}

void ArrayController::recordWasEdited(const MutableRecord& record) {
    const auto hash = static_cast<std::uint32_t>(hash_(record));
    std::vector<RecordSerial> edited;
    bool hasNewHash = false;
    for (Entry& entry : entries_)
        if (entry.record.get() == &record) {
            edited.push_back(entry.serial);
            hasNewHash |= std::exchange(entry.hash, hash) != hash;
        }
    if (hasNewHash)
        tidy(count_);
    // An observer may remove the next.
    for (const RecordSerial serial : edited) {
        const auto entry = std::ranges::lower_bound(entries_, serial, {}, &Entry::serial);
        if (entry != entries_.end() && entry->serial == serial && entry->record) {
            const Record kept = entry->record;
            observers_.notify({ListChange::Kind::Edited, serial, kept});
        }
    }
}

void ArrayController::stopWatching() {
    if (edits_ == Edits::Watched)
        for (const Record& record : arrangedObjects())
            record->removeWatcher(*this);
}

void ArrayController::remove(Position position) {
    if (position == none)
        return;
    unlink(position);
    const RecordSerial serial = entries_[position].serial;
    const Record removed = std::move(entries_[position].record);
    --count_;
    if (edits_ == Edits::Watched)
        removed->removeWatcher(*this);
    observers_.notify({ListChange::Kind::Removed, serial, removed});
}

std::size_t ArrayController::slotOf(std::size_t hash) const {
    const std::size_t mask = lastOfHash_.size() - 1;
    std::size_t slot = hash & mask;
    while (lastOfHash_[slot] != none &&
           entries_[lastOfHash_[slot]].hash != static_cast<std::uint32_t>(hash))
        slot = (slot + 1) & mask;
    return slot;
}

void ArrayController::link(Position position) {
    Position& last = lastOfHash_[slotOf(entries_[position].hash)];
    const bool isFirst = last == none || !entries_[last].record;
    entries_[position].next = isFirst ? position : std::exchange(entries_[last].next, position);
    last = position;
}

void ArrayController::unlink(Position position) {
    const Position next = entries_[position].next;
    if (next == position)
        return;
    Position& last = lastOfHash_[slotOf(entries_[position].hash)];
    Position before = last;
    while (entries_[before].next != position)
        before = entries_[before].next;
    entries_[before].next = next;
    if (last == position)
        last = before;
}

void ArrayController::tidy(std::size_t room) {
    constexpr std::size_t fewest = 16; // a power of two, as every later size
    lastOfHash_.assign(std::max(fewest, std::bit_ceil(2 * std::max(room, count_))), none);
    if (count_ < entries_.size())
        std::erase_if(entries_, [](const Entry& entry) { return !entry.record; });
    for (Position position = 0; position < entries_.size(); ++position)
        link(position);
}

} // namespace zarvil
