#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

namespace zarvil::fuzz {

/// Ends the process with a word about what does not hold, which the fuzzer reports as a finding.
inline void require(bool holds, std::string_view what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

/// The fuzzer's bytes as a source of decisions. An input that is used up goes on with zeros.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : rest_(bytes, size) {}

    [[nodiscard]] bool empty() const { return rest_.empty(); }
    std::uint8_t byte() {
        if (rest_.empty())
            return 0;
        const std::uint8_t first = rest_.front();
        rest_ = rest_.subspan(1);
        return first;
    }
    bool flag() { return (byte() & 1U) != 0; }
    /// From 0 to `count` less one.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : byte() % count; }
    std::uint64_t word() {
        std::uint64_t bits = 0;
        for (int count = 0; count < 8; ++count)
            bits = bits << 8U | byte();
        return bits;
    }
    std::int64_t integer() {
        return flag() ? static_cast<std::int64_t>(word()) : std::int64_t{byte()} - 8;
    }
    template <typename Type, std::size_t Count>
    const Type& pick(const std::array<Type, Count>& choices) {
        return choices.at(below(Count));
    }
    /// Any bytes.
    std::string text(std::size_t longest) {
        std::string bytes(below(longest + 1), '\0');
        for (char& character : bytes)
            character = static_cast<char>(byte());
        return bytes;
    }
    std::string rest() {
        const std::string all(rest_.begin(), rest_.end());
        rest_ = {};
        return all;
    }

private:
    std::span<const std::uint8_t> rest_;
};

} // namespace zarvil::fuzz
