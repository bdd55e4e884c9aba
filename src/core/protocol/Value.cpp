#include "protocol/Value.h"

#include "protocol/Numbers.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <new>

namespace zarvil {

namespace {

template <typename... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <typename... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

bool isNumber(const Value& value) {
    return value.as<bool>() || value.as<std::int64_t>() || value.as<double>();
}

/// The integer that a number is, if it is one exactly.
std::optional<std::int64_t> exactInteger(const Value& number) {
    const double* floating = number.as<double>();
    if (!floating)
        return number.integerValue();
    constexpr double bound = 9223372036854775808.0; // 2^63
    if (*floating >= -bound && *floating < bound && std::trunc(*floating) == *floating)
        return static_cast<std::int64_t>(*floating);
    return std::nullopt;
}

bool equalNumbers(const Value& left, const Value& right) {
    const auto leftInteger = exactInteger(left);
    const auto rightInteger = exactInteger(right);
    if (leftInteger || rightInteger)
        return leftInteger == rightInteger;
    return left.doubleValue() == right.doubleValue();
}

std::size_t combined(std::size_t seed, std::size_t hash) {
    constexpr std::size_t golden = 0x9e3779b97f4a7c15U; // 2^64 divided by the golden ratio
    return seed ^ (hash + golden + (seed << 6U) + (seed >> 2U));
}

std::size_t hashOf(const Data& data) {
    const auto* bytes = reinterpret_cast<const char*>(data.data());
    return std::hash<std::string_view>{}({bytes, data.size()});
}

std::size_t hashOf(const Array& array) {
    std::size_t hash = array.size();
    for (const Value& element : array)
        hash = combined(hash, contentHash(element));
    return hash;
}

} // namespace

Dictionary::Dictionary(std::initializer_list<std::pair<const std::string, Value>> entries) {
    Entries unsorted;
    unsorted.reserve(entries.size());
    for (const auto& [key, value] : entries)
        unsorted.push_back({key, value});
    *this = ofEntries(std::move(unsorted));
}

Dictionary Dictionary::ofEntries(Entries entries) {
    // Most senders sort them.
    if (!std::ranges::is_sorted(entries, std::ranges::less_equal(), &Entry::key)) {
        std::ranges::stable_sort(entries, {}, &Entry::key);
        const auto sameKey = [](const Entry& left, const Entry& right) {
            return left.key == right.key;
        };
        const auto behindFormer = std::unique(entries.rbegin(), entries.rend(), sameKey);
        entries.erase(entries.begin(), behindFormer.base());
    }
    Dictionary dictionary;
    if (entries.empty())
        return dictionary;
    static_assert(alignof(Entry) <= alignof(Block));
    dictionary.block_ = new (::operator new(sizeof(Block) + entries.size() * sizeof(Entry))) Block;
    dictionary.block_->count = entries.size();
    std::uninitialized_move(entries.begin(), entries.end(), dictionary.block_->entries());
    return dictionary;
}

Dictionary::~Dictionary() {
    if (!block_ || block_->owners.fetch_sub(1, std::memory_order_acq_rel) > 1)
        return;
    std::destroy_n(block_->entries(), block_->count);
    ::operator delete(block_);
}

const Value* Dictionary::objectForKey(std::string_view key) const {
    const auto all = entries();
    // Most differ in length already, so that a short walk needs fewer comparisons of text.
    constexpr std::size_t fewEntries = 8;
    if (all.size() <= fewEntries) {
        const auto found = std::ranges::find(all, key, &Entry::key);
        return found == all.end() ? nullptr : &found->value;
    }
    const auto found = std::ranges::lower_bound(all, key, {}, &Entry::key);
    return found == all.end() || found->key != key ? nullptr : &found->value;
}

void Dictionary::setObject(std::string_view key, Value value) {
    const std::span<Entry> own = ownEntries();
    const auto place = std::ranges::lower_bound(own, key, {}, &Entry::key);
    const bool isThere = place != own.end() && place->key == key;
    const bool isShared = block_ && block_->owners.load(std::memory_order_acquire) > 1;
    if (isThere && !isShared) {
        place->value = std::move(value);
        return;
    }
    Entries changed;
    changed.reserve(count() + 1);
    for (Entry& entry : own)
        changed.push_back(isShared ? entry : std::move(entry));
    const auto changedPlace = changed.begin() + (place - own.begin());
    if (isThere)
        changedPlace->value = std::move(value);
    else
        changed.insert(changedPlace, {std::string(key), std::move(value)});
    *this = ofEntries(std::move(changed));
}

bool Dictionary::boolForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value && value->boolValue();
}

std::int64_t Dictionary::integerForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value ? value->integerValue() : 0;
}

float Dictionary::floatForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value ? value->floatValue() : 0.0F;
}

const std::string* Dictionary::stringForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value ? value->as<std::string>() : nullptr;
}

const Array* Dictionary::arrayForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value ? value->as<Array>() : nullptr;
}

const Dictionary* Dictionary::dictionaryForKey(std::string_view key) const {
    const Value* value = objectForKey(key);
    return value ? value->as<Dictionary>() : nullptr;
}

bool operator==(const Dictionary& left, const Dictionary& right) {
    return std::ranges::equal(left.entries(), right.entries());
}

bool Value::boolValue() const {
    return std::visit(Overloaded{[](bool value) { return value; },
                                 [](std::int64_t value) { return value != 0; },
                                 [](double value) { return !std::isnan(value) && value != 0; },
                                 [](const std::string& value) { return numbers::boolValue(value); },
                                 [](const auto&) { return false; }},
                      storage_);
}

std::int64_t Value::integerValue() const {
    return std::visit(
        Overloaded{[](bool value) { return std::int64_t{value}; },
                   [](std::int64_t value) { return value; },
                   [](double value) { return numbers::truncated(value); },
                   [](const std::string& value) { return numbers::integerValue(value); },
                   [](const auto&) { return std::int64_t{0}; }},
        storage_);
}

int Value::intValue() const { return numbers::narrowed(integerValue()); }

float Value::floatValue() const { return numbers::narrowed(doubleValue()); }

double Value::doubleValue() const {
    return std::visit(
        Overloaded{[](bool value) { return value ? 1.0 : 0.0; },
                   [](std::int64_t value) { return static_cast<double>(value); },
                   [](double value) { return std::isnan(value) ? 0.0 : value; },
                   [](const std::string& value) { return numbers::doubleValue(value); },
                   [](const auto&) { return 0.0; }},
        storage_);
}

bool operator==(const Value& left, const Value& right) {
    if (isNumber(left) && isNumber(right))
        return equalNumbers(left, right);
    return left.storage_ == right.storage_;
}

std::size_t contentHash(const Value& value) {
    if (isNumber(value)) {
        const auto integer = exactInteger(value);
        return integer ? std::hash<std::int64_t>{}(*integer)
                       : std::hash<double>{}(value.doubleValue());
    }
    return std::visit(
        Overloaded{[](const std::string& text) { return std::hash<std::string_view>{}(text); },
                   [](const Data& data) { return hashOf(data); },
                   [](const Array& array) { return hashOf(array); },
                   [](const Dictionary& dictionary) { return contentHash(dictionary); },
                   [](const auto&) { return std::size_t{0}; }},
        value.storage());
}

std::size_t contentHash(const Dictionary& dictionary) {
    std::size_t hash = dictionary.count();
    for (const auto& [key, value] : dictionary.entries())
        hash = combined(combined(hash, std::hash<std::string_view>{}(key)), contentHash(value));
    return hash;
}

} // namespace zarvil
