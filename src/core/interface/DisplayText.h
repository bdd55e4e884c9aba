#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zarvil {

/// Whether line breaks and tabs are kept, or shown as signs like other control characters.
enum class LineBreaks : std::uint8_t { Shown, Kept };

/// Text from files, other programs and the agent, made fit for display: whatever comes from
/// outside passes through this. Control characters become visible signs, characters that would
/// reorder their surroundings become U+FFFD, and so does what is not UTF-8. Of a text longer than
/// `limit` bytes about that much is left, for laying out megabytes would stop the window: its ends
/// with an ellipsis between them, or its beginning where line breaks are kept.
[[nodiscard]] std::string showableText(std::string_view utf8, std::size_t limit,
                                       LineBreaks lineBreaks = LineBreaks::Shown);

/// A row of a list, and what explains one.
inline constexpr std::size_t longestShownLine = 512;     // bytes
inline constexpr std::size_t longestShownMessage = 4096; // bytes

/// Sorts as a reader expects when it is compared byte by byte: letters whatever their case and
/// Latin accents, numbers by their value.
[[nodiscard]] std::string naturalSortKey(std::string_view utf8);

} // namespace zarvil
