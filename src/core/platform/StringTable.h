#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace zarvil {

/// The main bundle's table of user-visible texts.
class StringTable {
public:
    StringTable() = default;
    StringTable(const StringTable&) = delete;
    StringTable& operator=(const StringTable&) = delete;
    virtual ~StringTable() = default;

    /// The translation, or the key itself, which is the English text.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;

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
