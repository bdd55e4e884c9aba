#pragma once

#include "platform/StringTable.h"

namespace zarvil {

/// The texts of the application's installed translators in the context "MainBundle".
class QtStringTable final : public StringTable {
public:
    /// An empty translation counts as none.
    [[nodiscard]] std::string localizedString(std::string_view key) const override;
    [[nodiscard]] std::string localizedCount(std::string_view one, std::string_view many,
                                             std::int64_t count) const override;
};

} // namespace zarvil
