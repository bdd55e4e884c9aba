#pragma once

#include "platform/Error.h"
#include "platform/StringTable.h"

#include <string>
#include <string_view>

namespace zarvil::posix {

/// Why an operation failed, in plain words without a full stop, such as "the disk is full".
[[nodiscard]] std::string reason(const StringTable& strings, int errorNumber);

/// An error whose code is the system's error number. `sentence` is a key of the string table that
/// tells what could not be done, with "%1" for the path and "%2" for the reason.
[[nodiscard]] Error systemError(const StringTable& strings, std::string_view sentence,
                                std::string_view path, int errorNumber);

} // namespace zarvil::posix
