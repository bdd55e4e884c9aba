#pragma once

#include "platform/Pointer.h"
#include "platform/StringTable.h"
#include "platform/UserDefaults.h"

#include <optional>
#include <string>

/// What the system holds of the user's wishes.
namespace zarvil::cocoa {

/// The default table of the main bundle.
class CocoaStringTable final : public StringTable {
public:
    [[nodiscard]] std::string localizedString(std::string_view key) const override;
    [[nodiscard]] std::string localizedCount(std::string_view one, std::string_view many,
                                             std::int64_t count) const override;
    using StringTable::localizedString;
};

/// The user's standard defaults.
class CocoaUserDefaults final : public UserDefaults {
public:
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    void setBool(bool value, std::string_view key) override;
};

/// How long and how far a press may go and still be a click; nothing where the system does not
/// tell.
[[nodiscard]] std::optional<StickyClick> stickyClick();

/// Between the whole and the fraction of a number; in UTF-8.
[[nodiscard]] std::string decimalSeparator();

} // namespace zarvil::cocoa
