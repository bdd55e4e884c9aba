#include "protocol/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zarvil {

namespace {

/// The well-formed sequences by their first byte, as the Unicode standard tabulates them: what may
/// follow at second place, and how long they are. Later bytes are any that continue.
struct Form {
    std::uint8_t firstLead;
    std::uint8_t lastLead;
    std::uint8_t lowestSecond;
    std::uint8_t highestSecond;
    std::size_t length;
};
constexpr std::array<Form, 8> forms{{{0xC2, 0xDF, 0x80, 0xBF, 2},
                                     {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                     {0xE1, 0xEC, 0x80, 0xBF, 3},
                                     {0xED, 0xED, 0x80, 0x9F, 3},
                                     {0xEE, 0xEF, 0x80, 0xBF, 3},
                                     {0xF0, 0xF0, 0x90, 0xBF, 4},
                                     {0xF1, 0xF3, 0x80, 0xBF, 4},
                                     {0xF4, 0xF4, 0x80, 0x8F, 4}}};

bool isWithin(char byte, std::uint8_t lowest, std::uint8_t highest) {
    const auto value = static_cast<std::uint8_t>(byte);
    return value >= lowest && value <= highest;
}

} // namespace

std::size_t utf8SequenceLength(std::string_view bytes) {
    if (bytes.empty())
        return 0;
    if (isWithin(bytes[0], 0, 0x7F))
        return 1;
    const auto* const form = std::ranges::find_if(forms, [lead = bytes[0]](const Form& each) {
        return isWithin(lead, each.firstLead, each.lastLead);
    });
    if (form == forms.end() || bytes.size() < form->length ||
        !isWithin(bytes[1], form->lowestSecond, form->highestSecond))
        return 0;
    const bool continues = std::ranges::all_of(
        bytes.substr(2, form->length - 2), [](char byte) { return isWithin(byte, 0x80, 0xBF); });
    return continues ? form->length : 0;
}

bool isValidUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = utf8SequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

} // namespace zarvil
