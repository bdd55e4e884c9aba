#pragma once

#include "protocol/NonCopyable.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace zarvil {

/// The main bundle's table of user-visible texts.
class StringTable : NonCopyable {
public:
    virtual ~StringTable() = default;

    /// The translation, or the key itself, which is the English text.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;

    /// A text that tells of a number, which stands for its "%n". A table that knows of more forms
    /// than these two, the key being `many`, picks the one that its language asks for.
    [[nodiscard]] virtual std::string localizedCount(std::string_view one, std::string_view many,
                                                     std::int64_t count) const {
        std::string text = localizedString(count == 1 ? one : many);
        if (const auto place = text.find("%n"); place != std::string::npos)
            text.replace(place, 2, std::to_string(count));
        return text;
    }

    /// The same with "%1" to "%9" replaced by what is given, once each; a "%" in that stays.
    [[nodiscard]] std::string
    localizedString(std::string_view key, std::initializer_list<std::string_view> arguments) const {
        const std::string text = localizedString(key);
        std::string filled;
        for (std::size_t at = 0; at < text.size(); ++at) {
            const auto number = static_cast<std::size_t>(at + 1 < text.size() ? text[at + 1] : 0);
            if (text[at] == '%' && number > '0' && number - '0' <= arguments.size()) {
                filled += arguments.begin()[number - '1'];
                ++at;
            } else {
                filled += text[at];
            }
        }
        return filled;
    }
};

} // namespace zarvil
