#include "protocol/Utf8.h"

#include <cstdint>

namespace zarvil {

std::size_t utf8SequenceLength(std::string_view bytes) {
    const auto at = [&bytes](std::size_t index) {
        return index < bytes.size() ? static_cast<std::uint8_t>(bytes[index]) : std::uint8_t{0};
    };
    const auto continues = [&at](std::size_t from, std::size_t end) {
        for (std::size_t index = from; index < end; ++index) {
            if ((at(index) & 0xC0) != 0x80)
                return false;
        }
        return true;
    };
    const std::uint8_t lead = at(0);
    const std::uint8_t second = at(1);
    if (lead < 0x80)
        return bytes.empty() ? 0 : 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return continues(1, 2) ? 2 : 0;
    if ((lead & 0xF0) == 0xE0) {
        const bool overlong = lead == 0xE0 && second < 0xA0;
        const bool surrogate = lead == 0xED && second > 0x9F;
        return !overlong && !surrogate && continues(1, 3) ? 3 : 0;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const bool overlong = lead == 0xF0 && second < 0x90;
        const bool beyondUnicode = lead == 0xF4 && second > 0x8F;
        return !overlong && !beyondUnicode && continues(1, 4) ? 4 : 0;
    }
    return 0;
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
