#pragma once

#include "interface/ArrayController.h"
#include "protocol/NonCopyable.h"

#include <list>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zarvil {

/// Device records in the order of their arrival, equal ones side by side, and two ways to look
/// one up. A look-up gives the answer of a walk in order without walking. Records are not edited
/// while they are listed.
class DeviceList : NonCopyable {
public:
    DeviceList() = default;
    /// Follows the arranged objects of a controller, which it does not own.
    explicit DeviceList(const ArrayController& followed);

    void add(Record record);
    /// Removes this very record, once.
    void remove(const Record& record);
    void clear();

    /// The first record whose name, vendor and serial all equal the device's, byte by byte, or
    /// null. A value that is missing or is no string never equals anything.
    [[nodiscard]] Record firstSameDevice(const Dictionary& device) const;
    /// Whether a record's serial is an equal object, whatever its kind.
    [[nodiscard]] bool containsSerial(const Value& serial) const;
    [[nodiscard]] const std::list<Record>& records() const { return records_; }

private:
    using Position = std::list<Record>::iterator;
    struct ContentHash {
        std::size_t operator()(const Value& value) const { return contentHash(value); }
    };

    void contentDidChange(const ListChange& change);
    void collectSerials() const;

    std::list<Record> records_;
    /// Positions under one hash stand in the order of arrival.
    std::unordered_map<std::size_t, std::vector<Position>> positions_;
    /// Collected when first asked for and dropped by every change: many are asked for in a row
    /// only while nothing arrives.
    mutable std::optional<std::unordered_set<Value, ContentHash>> serials_;
    Subscription followedChanges_;
};

} // namespace zarvil
