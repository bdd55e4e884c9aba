#pragma once

#include "protocol/NonCopyable.h"

#include <string>
#include <string_view>

namespace zarvil {

/// The main bundle's table of user-visible texts.
class StringTable : NonCopyable {
public:
    virtual ~StringTable() = default;

    /// The translation, or the key itself, which is the English text.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;
};

} // namespace zarvil
