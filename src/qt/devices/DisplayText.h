#pragma once

#include <QString>

#include <cstddef>
#include <string_view>

namespace zarvil::qt {

/// Text from outside, made fit for display. Control characters become visible signs, characters
/// that would reorder their surroundings become the replacement character, and so does what is
/// not UTF-8. Of a text longer than `limit` bytes about that much is left, its ends with an
/// ellipsis between them: laying out megabytes would stop the window.
[[nodiscard]] QString displayText(std::string_view utf8, std::size_t limit);

} // namespace zarvil::qt
