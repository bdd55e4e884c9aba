#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace zarvil {

class Value;

using Data = std::vector<std::byte>;
using Array = std::vector<Value>;

/// A string-keyed property-list dictionary. The readers forgive: a missing key reads as false,
/// 0 or null, and so does a value that cannot be read as what is asked for. A copy shares the
/// entries until one of the two changes: a message lists thousands of records that are then kept.
class Dictionary {
public:
    struct Entry;
    using Entries = std::vector<Entry>;

    Dictionary() = default;
    Dictionary(const Dictionary& other) noexcept;
    Dictionary(Dictionary&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
    Dictionary& operator=(Dictionary other) noexcept {
        std::swap(block_, other.block_);
        return *this;
    }
    ~Dictionary();
    Dictionary(std::initializer_list<std::pair<const std::string, Value>> entries);
    /// From entries in any order; of equal keys the last counts. Unlike setting them one by one,
    /// the time is in proportion to their number.
    [[nodiscard]] static Dictionary ofEntries(Entries entries);

    /// Null when the key is missing. Valid until the dictionary changes.
    [[nodiscard]] const Value* objectForKey(std::string_view key) const;
    void setObject(std::string_view key, Value value);

    [[nodiscard]] bool boolForKey(std::string_view key) const;
    [[nodiscard]] std::int64_t integerForKey(std::string_view key) const;
    [[nodiscard]] float floatForKey(std::string_view key) const;
    /// Null unless the value is a string.
    [[nodiscard]] const std::string* stringForKey(std::string_view key) const;
    /// Null unless the value is an array.
    [[nodiscard]] const Array* arrayForKey(std::string_view key) const;
    /// Null unless the value is a dictionary.
    [[nodiscard]] const Dictionary* dictionaryForKey(std::string_view key) const;

    [[nodiscard]] std::size_t count() const;
    /// Sorted by key.
    [[nodiscard]] std::span<const Entry> entries() const;

    friend bool operator==(const Dictionary& left, const Dictionary& right);

private:
    /// The entries, in one piece of memory with their number and that of the dictionaries that
    /// share them: a record has a few, and there are thousands of records.
    struct Block;
    [[nodiscard]] std::span<Entry> ownEntries() const;

    Block* block_ = nullptr; ///< null for none
};

/// One property-list value, the only kind of thing that travels between pane and agent.
class Value {
public:
    using Storage = std::variant<bool, std::int64_t, double, std::string, Data, Array, Dictionary>;

    Value(bool value) : storage_(value) {}
    Value(int value) : storage_(std::int64_t{value}) {}
    Value(std::int64_t value) : storage_(value) {}
    Value(double value) : storage_(value) {}
    Value(const char* value) : storage_(std::string(value)) {}
    Value(std::string_view value) : storage_(std::string(value)) {}
    Value(std::string value) : storage_(std::move(value)) {}
    Value(Data value) : storage_(std::move(value)) {}
    Value(Array value) : storage_(std::move(value)) {}
    Value(Dictionary value) : storage_(std::move(value)) {}

    [[nodiscard]] bool boolValue() const;
    [[nodiscard]] std::int64_t integerValue() const;
    [[nodiscard]] int intValue() const;
    [[nodiscard]] float floatValue() const;
    [[nodiscard]] double doubleValue() const;

    [[nodiscard]] const Storage& storage() const { return storage_; }
    template <typename Type>
    [[nodiscard]] const Type* as() const {
        return std::get_if<Type>(&storage_);
    }

    /// Equality of contents: numbers compare by value whatever their kind, so true equals 1.
    friend bool operator==(const Value& left, const Value& right);

private:
    Storage storage_;
};

struct Dictionary::Entry {
    std::string key;
    Value value = false;
    friend bool operator==(const Entry&, const Entry&) = default;
};

struct Dictionary::Block {
    [[nodiscard]] Entry* entries() { return reinterpret_cast<Entry*>(this + 1); }

    std::atomic<std::size_t> owners = 1;
    std::size_t count = 0;
};
inline Dictionary::Dictionary(const Dictionary& other) noexcept : block_(other.block_) {
    if (block_)
        block_->owners.fetch_add(1, std::memory_order_relaxed);
}
inline std::size_t Dictionary::count() const { return block_ ? block_->count : 0; }
inline std::span<Dictionary::Entry> Dictionary::ownEntries() const {
    return {block_ ? block_->entries() : nullptr, count()};
}
inline std::span<const Dictionary::Entry> Dictionary::entries() const { return ownEntries(); }

/// Equal contents have equal hashes, numbers of different kinds included.
[[nodiscard]] std::size_t contentHash(const Value& value);
[[nodiscard]] std::size_t contentHash(const Dictionary& dictionary);

} // namespace zarvil
