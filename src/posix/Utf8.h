#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zarvil::posix {

/// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// One line of plain text from another program's output: what is not UTF-8 becomes U+FFFD,
/// control characters become blanks, and blanks at both ends fall away.
[[nodiscard]] std::string printableLine(std::string_view bytes);

} // namespace zarvil::posix
