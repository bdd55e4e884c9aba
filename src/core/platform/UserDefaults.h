#pragma once

#include "protocol/NonCopyable.h"

#include <string_view>

namespace zarvil {

/// The pane's own preferences of this user, kept across restarts.
class UserDefaults : NonCopyable {
public:
    virtual ~UserDefaults() = default;

    /// False for a key that was never set.
    [[nodiscard]] virtual bool boolForKey(std::string_view key) const = 0;
    virtual void setBool(bool value, std::string_view key) = 0;
};

} // namespace zarvil
