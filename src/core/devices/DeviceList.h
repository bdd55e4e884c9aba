#pragma once

#include "interface/ArrayController.h"
#include "protocol/NonCopyable.h"

#include <array>
#include <optional>
#include <string>
#include <unordered_set>

namespace zarvil {

/// What tells a device apart: name, vendor and serial, byte by byte. A value that is missing or is
/// no string never equals anything. Refers to the device.
class DeviceIdentity {
public:
    explicit DeviceIdentity(const Dictionary& device);

    /// Equal for the same device. Incomplete ones, which are the same as nothing, spread by their
    /// contents.
    [[nodiscard]] std::size_t hash() const { return hash_; }
    [[nodiscard]] bool isOf(const Record& record) const;

private:
    using Texts = std::array<const std::string*, 3>;
    [[nodiscard]] static Texts textsOf(const Dictionary& device);

    Texts texts_;
    std::size_t hash_;
};

/// Of its identity: what devices are looked up by.
[[nodiscard]] std::size_t deviceHash(const MutableRecord& device);

/// The first record of the same device, in a list that is hashed by `deviceHash`, or null.
[[nodiscard]] Record firstSameDevice(const ArrayController& list, const DeviceIdentity& device);
/// Removes it, if there is one.
void removeFirstSameDevice(ArrayController& list, const DeviceIdentity& device);

/// Device records in the order of their arrival, equal ones side by side, and two ways to look
/// one up. A look-up gives the answer of a walk in order without walking. Records are not edited
/// while they are listed.
class DeviceList : NonCopyable {
public:
    void add(const Record& record);
    /// Removes the first same device, if there is one.
    void removeSameDevice(const DeviceIdentity& device);
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

    ArrayController list_{&deviceHash, ArrayController::Edits::Never};
    /// Made when a question needs it: unlike arrivals, questions come with a user's clicks alone.
    mutable std::optional<std::unordered_set<Value, ContentHash>> serials_;
};

} // namespace zarvil
