#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Reading numbers from text and narrowing them, always with a defined result: the longest
/// numeric prefix after leading blanks counts, no prefix gives 0, and what does not fit saturates.
namespace zarvil::numbers {

[[nodiscard]] std::int64_t integerValue(std::string_view text);
[[nodiscard]] int intValue(std::string_view text);
[[nodiscard]] double doubleValue(std::string_view text);
[[nodiscard]] float floatValue(std::string_view text);

/// Whether the whole text, but for blanks around it, is a decimal number without an exponent that
/// is not negative, in that notation. Digits are those of ASCII and in no groups.
[[nodiscard]] bool isUnsignedDecimal(std::string_view text, std::string_view decimalSeparator);

/// True for text that starts, after blanks, a sign and zeros, with 1-9, "Y", "y", "T" or "t".
[[nodiscard]] bool boolValue(std::string_view text);

/// Truncates toward zero; NaN gives 0.
[[nodiscard]] std::int64_t truncated(double value);
/// The nearest single-precision value, never infinite; NaN gives 0.
[[nodiscard]] float narrowed(double value);
[[nodiscard]] int narrowed(std::int64_t value);

/// Seven significant digits at the most, the decimal point a point, no trailing zeros.
[[nodiscard]] std::string text(float value);
[[nodiscard]] std::string text(std::int64_t value);

} // namespace zarvil::numbers
