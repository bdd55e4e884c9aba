#pragma once

#include "platform/Error.h"

#include <string>
#include <string_view>

namespace zarvil::posix {

/// Why an operation failed, in plain words without a full stop, such as "the disk is full".
[[nodiscard]] std::string reason(int errorNumber);

/// An error whose code is the system's error number. `attempt` is what could not be done, such as
/// "remove"; the sentence names the path and the reason.
[[nodiscard]] Error systemError(std::string_view attempt, std::string_view path, int errorNumber);

} // namespace zarvil::posix
