#pragma once

#include <string_view>

namespace zarvil {

/// Whether the whole text matches "[A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4}", in time
/// linear in its length and constant space. Longer top-level domains fail on purpose.
[[nodiscard]] bool matchesEmailPattern(std::string_view text);

} // namespace zarvil
