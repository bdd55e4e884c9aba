#pragma once

#include <cstddef>
#include <string_view>

namespace zarvil {

/// Length of the well-formed sequence at the start of the bytes, 0 without one: no overlong forms,
/// no surrogates.
[[nodiscard]] std::size_t utf8SequenceLength(std::string_view bytes);

[[nodiscard]] bool isValidUtf8(std::string_view bytes);

} // namespace zarvil
