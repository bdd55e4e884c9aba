#pragma once

#include "interface/Record.h"
#include "protocol/NonCopyable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zarvil {

/// How a list changed: a record came or went at an index, or all records went.
struct ListChange {
    enum class Kind : std::uint8_t { Inserted, Removed, Cleared };
    Kind kind;
    std::size_t index;
    Record record; ///< null when all went
};

/// The records of a list in the order in which they are shown. No sort order is set, so that is
/// the order of their addition. Looking a record up answers as a walk in order would, in constant
/// time.
class ArrayController : NonCopyable {
public:
    using Observer = std::function<void(const ListChange&)>;

    [[nodiscard]] const std::vector<Record>& arrangedObjects() const { return records_; }
    [[nodiscard]] bool empty() const { return records_.empty(); }

    /// Shares the record; equal ones may stand side by side.
    void addObject(Record record);
    /// Removes one record: this very object if it is listed, else the first of equal contents.
    void removeObject(const Record& record);
    void removeAllArrangedObjects();
    /// Sorts anew: without a sort order the records stay as they were added.
    void rearrangeObjects() {}

    /// Index of the first record of equal contents.
    [[nodiscard]] std::optional<std::size_t> indexOfObject(const Dictionary& contents) const;

    /// The new observer is first told of every record that is listed.
    Subscription observe(Observer observer) const;

private:
    /// Orders the records by their addition; a record keeps its number while its index shifts.
    using Serial = std::uint64_t;
    struct Entry {
        Serial serial;
        std::size_t hash; ///< of the contents, kept current by watching the record's edits
        Subscription edits;
    };

    [[nodiscard]] std::size_t indexOfSerial(Serial serial) const;
    [[nodiscard]] std::optional<std::size_t> indexOfIdentity(const Record& record) const;
    void rehash(Serial serial);
    void list(std::size_t hash, Serial serial);
    void unlist(const Entry& entry);
    void removeAt(std::size_t index);

    std::vector<Record> records_;
    std::vector<Entry> entries_; ///< beside `records_`, with ascending serials
    /// Serials in ascending order, so that the first match is the walk's answer.
    std::unordered_map<std::size_t, std::vector<Serial>> serialsByHash_;
    Serial nextSerial_ = 0;
    mutable ObserverList<const ListChange&> observers_;
};

} // namespace zarvil
