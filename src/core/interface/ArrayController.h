#pragma once

#include "interface/Record.h"
#include "protocol/NonCopyable.h"

#include <cstddef>
#include <cstdint>
#include <deque>
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
    RecordSerial serial;  ///< 0 when all went
    const Record& record; ///< null when all went
};

/// The records of a list in the order of their addition. Looking a record up answers as a walk in
/// order would, in constant time; an index costs a walk where records were removed before.
class ArrayController : RecordWatcher {
    /// Of an entry; `none` for no entry.
    using Position = std::uint32_t;
    static constexpr Position none = ~Position{0};

    /// They stand side by side, each within one line of memory, for a long list is mostly looked at
    /// in places that no near cache holds. Positions change only when removed ones are dropped.
    struct alignas(32) Entry {
        Record record; ///< null where it was removed
        RecordSerial serial;
        std::uint32_t hash;   ///< the low bits; kept current by watching
        Position next = none; ///< of this hash; the first one's behind the last
    };
    using Entries = std::deque<Entry>;

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
            Iterator(const Entries::const_iterator& entry, const Entries::const_iterator& end)
                : entry_(entry), end_(end) {
                skipRemoved();
            }
            const Record& operator*() const { return (*entry_).record; }
            Iterator& operator++() {
                ++entry_;
                skipRemoved();
                return *this;
            }
            Iterator operator++(int) {
                Iterator former = *this;
                ++*this;
                return former;
            }
            friend bool operator==(const Iterator&, const Iterator&) = default;

        private:
            void skipRemoved() {
                while (entry_ != end_ && !(*entry_).record)
                    ++entry_;
            }

            Entries::const_iterator entry_;
            Entries::const_iterator end_;
        };

        explicit ArrangedObjects(const ArrayController& list) : list_(&list) {}
        [[nodiscard]] Iterator begin() const {
            return {list_->entries_.begin(), list_->entries_.end()};
        }
        [[nodiscard]] Iterator end() const {
            return {list_->entries_.end(), list_->entries_.end()};
        }
        [[nodiscard]] std::size_t size() const { return list_->count_; }
        [[nodiscard]] const Record& operator[](std::size_t index) const {
            return list_->entryAt(index).record;
        }
        /// Throws behind the end.
        [[nodiscard]] const Record& at(std::size_t index) const;

    private:
        const ArrayController* list_;
    };

    /// Whether the records may be edited while they are listed.
    enum class Edits : std::uint8_t { Watched, Never };

    /// A hash of what records are most often looked up by serves `firstOfHash` as well.
    explicit ArrayController(Hash hash = &hashOfContents, Edits edits = Edits::Watched)
        : hash_(hash), edits_(edits) {}
    ~ArrayController() { stopWatching(); }

    [[nodiscard]] ArrangedObjects arrangedObjects() const { return ArrangedObjects(*this); }
    [[nodiscard]] bool empty() const { return count_ == 0; }

    /// Makes room for so many records at once, which many single additions come to anyway.
    void reserve(std::size_t count) { tidy(count); }
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
        return entryAt(index).serial;
    }
    /// The first record that a walk over those of one hash finds, or null.
    template <typename Predicate>
    [[nodiscard]] Record firstOfHash(std::size_t hash, Predicate&& matches) const {
        const Position found = firstPosition(hash, matches);
        return found == none ? nullptr : entries_[found].record;
    }
    /// Removes it, if there is one.
    template <typename Predicate>
    void removeFirstOfHash(std::size_t hash, Predicate&& matches) {
        remove(firstPosition(hash, matches));
    }

    /// The new observer is first told of every record that is listed.
    Subscription observe(Observer observer) const;

    [[nodiscard]] static std::size_t hashOfContents(const MutableRecord& record) {
        return contentHash(record.contents());
    }

private:
    template <typename Predicate>
    [[nodiscard]] Position firstPosition(std::size_t hash, Predicate&& matches) const {
        const Position last = empty() ? none : lastOfHash_[slotOf(hash)];
        // A hash's last entry keeps its place when it is removed and no other is left.
        if (last == none || !entries_[last].record)
            return none;
        Position position = last;
        do {
            position = entries_[position].next;
            if (matches(entries_[position].record))
                return position;
        } while (position != last);
        return none;
    }
    [[nodiscard]] Position firstEqual(const Record& record) const;
    [[nodiscard]] const Entry& entryAt(std::size_t index) const;
    [[nodiscard]] std::size_t slotOf(std::size_t hash) const;
    void recordWasEdited(const MutableRecord& record) override;
    void stopWatching();
    void remove(Position position);
    void link(Position position);
    void unlink(Position position);
    void tidy(std::size_t room);

    Hash hash_;
    Edits edits_;
    Entries entries_; ///< with ascending serials
    std::size_t count_ = 0;
    /// The last entry of a hash is found from the hash's own place on, before the next free one.
    std::vector<Position> lastOfHash_;
    RecordSerial nextSerial_ = 1;
    mutable ObserverList<const ListChange&> observers_;
};

} // namespace zarvil
