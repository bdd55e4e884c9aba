#pragma once

#include "protocol/Utf8.h"

#include <string>
#include <string_view>

namespace zarvil::posix {

/// One line of another program's output or a path, fit for display, without blanks at its ends.
[[nodiscard]] std::string printableLine(std::string_view bytes);

} // namespace zarvil::posix
