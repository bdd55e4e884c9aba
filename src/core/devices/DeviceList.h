#pragma once

#include "interface/ArrayController.h"
#include "protocol/NonCopyable.h"

#include <optional>
#include <unordered_set>

namespace zarvil {

/// Equal for the same device. Incomplete records, which are the same as nothing, spread by their
/// contents.
[[nodiscard]] std::size_t deviceHash(const MutableRecord& device);

/// The first record, in a list that is hashed by `deviceHash`, whose name, vendor and serial all
/// equal the device's, byte by byte, or null. A value that is missing or is no string never equals
/// anything.
[[nodiscard]] Record firstSameDevice(const ArrayController& list, const Dictionary& device);

/// Device records in the order of their arrival, equal ones side by side, and two ways to look
/// one up. A look-up gives the answer of a walk in order without walking. Records are not edited
/// while they are listed.
class DeviceList : NonCopyable {
public:
    void add(const Record& record);
    /// Removes the first same device, if there is one.
    void removeSameDevice(const Dictionary& device);
    void clear();

    /// Whether a record's serial is an equal object, whatever its kind.
    [[nodiscard]] bool containsSerial(const Value& serial) const;
    [[nodiscard]] ArrayController::ArrangedObjects records() const {
        return list_.arrangedObjects();
    }

private:
    struct ContentHash {
        std::size_t operator()(const Value& value) const { return contentHash(value); }
    };

    ArrayController list_{&deviceHash};
    /// Made when a question needs it: unlike arrivals, questions come with a user's clicks alone.
    mutable std::optional<std::unordered_set<Value, ContentHash>> serials_;
};

} // namespace zarvil
