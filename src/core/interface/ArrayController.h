#pragma once

#include "interface/ChunkedList.h"
#include "interface/HashIndex.h"
#include "interface/Record.h"
#include "protocol/NonCopyable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace zarvil {

/// Orders the records of a list by their addition; a record keeps its serial while its index
/// shifts. Never used twice by one list.
using RecordSerial = std::uint64_t;

/// How a list changed: a record came, went or was edited, or all records went.
struct ListChange {
    enum class Kind : std::uint8_t { Inserted, Removed, Edited, Cleared };
    Kind kind;
    RecordSerial serial; ///< 0 when all went
    Record record;       ///< null when all went
};

/// The records of a list in the order of their addition. Looking a record up answers as a walk in
/// order would, in constant time.
class ArrayController : NonCopyable {
    /// Watches its record.
    struct Entry final : Chunked, Hashed<Entry>, RecordWatcher {
        Entry(ArrayController& list, RecordSerial ownSerial, Record listed);
        ~Entry() { record->removeWatcher(*this); }
        void recordWasEdited() override { owner.recordWasEdited(*this); }
        [[nodiscard]] std::size_t hashKey() const { return hash; }

        ArrayController& owner;
        RecordSerial serial;
        std::size_t hash; ///< kept current by watching
        Record record;
        /// The ring of the entries of this hash, by serial.
        Entry* before = this;
        Entry* after = this;
    };
    using Entries = ChunkedList<Entry>;

public:
    using Observer = std::function<void(const ListChange&)>;
    /// Equal for records of equal contents.
    using Hash = std::size_t (*)(const MutableRecord&);

    /// The records, as a range and by index.
    class ArrangedObjects {
    public:
        class Iterator {
        public:
            using value_type = Record;
            using difference_type = std::ptrdiff_t;

            Iterator() = default;
            explicit Iterator(Entries::Iterator entry) : entry_(entry) {}
            const Record& operator*() const { return (*entry_).record; }
            Iterator& operator++() {
                ++entry_;
                return *this;
            }
            Iterator operator++(int) { return Iterator(entry_++); }
            friend bool operator==(const Iterator&, const Iterator&) = default;

        private:
            Entries::Iterator entry_;
        };

        explicit ArrangedObjects(const Entries& entries) : entries_(&entries) {}
        [[nodiscard]] Iterator begin() const { return Iterator(entries_->begin()); }
        [[nodiscard]] Iterator end() const { return Iterator(entries_->end()); }
        [[nodiscard]] std::size_t size() const { return entries_->size(); }
        [[nodiscard]] const Record& operator[](std::size_t index) const {
            return (*entries_)[index].record;
        }
        /// Throws behind the end.
        [[nodiscard]] const Record& at(std::size_t index) const {
            return entries_->at(index).record;
        }

    private:
        const Entries* entries_;
    };

    /// A hash of what records are most often looked up by serves `firstOfHash` as well.
    explicit ArrayController(Hash hash = &hashOfContents) : hash_(hash) {}

    [[nodiscard]] ArrangedObjects arrangedObjects() const { return ArrangedObjects(entries_); }
    [[nodiscard]] bool empty() const { return entries_.empty(); }

    /// Shares the record; equal ones may stand side by side.
    void addObject(Record record);
    /// Removes one record: this very object if it is listed, else the first of equal contents.
    void removeObject(const Record& record);
    void removeAllArrangedObjects();
    /// Sorts anew: without a sort order the records stay as they were added.
    void rearrangeObjects() {}

    /// Index of the first record of contents equal to those of this one.
    [[nodiscard]] std::optional<std::size_t> indexOfObject(const Record& record) const;
    /// Its serial, for whoever need not know where it stands.
    [[nodiscard]] std::optional<RecordSerial> serialOfObject(const Record& record) const;
    [[nodiscard]] RecordSerial serialAtIndex(std::size_t index) const {
        return entries_[index].serial;
    }
    /// The first record that a walk over those of one hash finds, or null.
    template <typename Predicate>
    [[nodiscard]] Record firstOfHash(std::size_t hash, Predicate&& matches) const {
        const Entry* entry = firstEntry(hash, matches);
        return entry ? entry->record : nullptr;
    }

    /// The new observer is first told of every record that is listed.
    Subscription observe(Observer observer) const;

    [[nodiscard]] static std::size_t hashOfContents(const MutableRecord& record) {
        return contentHash(record.contents());
    }

private:
    template <typename Predicate>
    [[nodiscard]] Entry* firstEntry(std::size_t hash, Predicate&& matches) const {
        Entry* const first = firstOfHash_.find(hash);
        for (Entry* entry = first; entry;) {
            if (matches(entry->record))
                return entry;
            entry = entry->after == first ? nullptr : entry->after;
        }
        return nullptr;
    }
    [[nodiscard]] Entry* firstEqual(const Record& record) const;
    void recordWasEdited(Entry& entry);
    void list(Entry& entry);
    void unlist(Entry& entry);

    Hash hash_;
    Entries entries_;              ///< with ascending serials
    HashIndex<Entry> firstOfHash_; ///< by serial, so that the first match is the walk's answer
    RecordSerial nextSerial_ = 1;
    mutable ObserverList<const ListChange&> observers_;
};

} // namespace zarvil
