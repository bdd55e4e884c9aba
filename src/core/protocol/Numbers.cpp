#include "protocol/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace zarvil::numbers {

namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view withoutLeadingBlanks(std::string_view text) {
    const auto start = text.find_first_not_of(blanks);
    return start == std::string_view::npos ? std::string_view{} : text.substr(start);
}

std::size_t digitRun(std::string_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end;
}

/// A decimal number at the start of a text: sign, digits with an optional point, exponent.
struct DecimalPrefix {
    bool negative = false;
    std::string_view magnitude; ///< without the sign; empty when there is no number
    bool large = false;         ///< decides an out-of-range value: too large, else too small
};

bool isTooLargeRatherThanTooSmall(std::string_view mantissa, std::string_view exponent) {
    const auto firstSignificant = mantissa.find_first_of("123456789");
    if (firstSignificant == std::string_view::npos)
        return false;
    const auto point = std::min(mantissa.find('.'), mantissa.size());
    const auto magnitude = static_cast<double>(point) - static_cast<double>(firstSignificant);
    return magnitude + static_cast<double>(integerValue(exponent)) > 0;
}

DecimalPrefix decimalPrefix(std::string_view text) {
    DecimalPrefix prefix;
    std::string_view rest = withoutLeadingBlanks(text);
    if (!rest.empty() && (rest[0] == '-' || rest[0] == '+')) {
        prefix.negative = rest[0] == '-';
        rest.remove_prefix(1);
    }
    std::size_t end = digitRun(rest, 0);
    bool hasDigits = end > 0;
    if (end < rest.size() && rest[end] == '.') {
        const std::size_t fractionEnd = digitRun(rest, end + 1);
        hasDigits = hasDigits || fractionEnd > end + 1;
        end = fractionEnd;
    }
    if (!hasDigits)
        return prefix;
    const std::string_view mantissa = rest.substr(0, end);
    std::string_view exponent;
    if (end < rest.size() && (rest[end] == 'e' || rest[end] == 'E')) {
        std::size_t digits = end + 1;
        if (digits < rest.size() && (rest[digits] == '-' || rest[digits] == '+'))
            ++digits;
        const std::size_t exponentEnd = digitRun(rest, digits);
        if (exponentEnd > digits) {
            exponent = rest.substr(end + 1, exponentEnd - end - 1);
            end = exponentEnd;
        }
    }
    prefix.magnitude = rest.substr(0, end);
    prefix.large = isTooLargeRatherThanTooSmall(mantissa, exponent);
    return prefix;
}

} // namespace

std::int64_t integerValue(std::string_view text) {
    std::string_view digits = withoutLeadingBlanks(text);
    const bool negative = !digits.empty() && digits[0] == '-';
    if (!digits.empty() && (digits[0] == '-' || digits[0] == '+'))
        digits.remove_prefix(1);
    digits = digits.substr(0, digitRun(digits, 0));
    if (digits.empty())
        return 0;
    std::uint64_t magnitude = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    if (result.ec != std::errc{} || magnitude > static_cast<std::uint64_t>(largest))
        return negative ? std::numeric_limits<std::int64_t>::min() : largest;
    const auto value = static_cast<std::int64_t>(magnitude);
    return negative ? -value : value;
}

int intValue(std::string_view text) { return narrowed(integerValue(text)); }

double doubleValue(std::string_view text) {
    const DecimalPrefix prefix = decimalPrefix(text);
    if (prefix.magnitude.empty())
        return 0;
    double value = 0;
    const char* first = prefix.magnitude.data();
    const auto result = std::from_chars(first, first + prefix.magnitude.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        value = prefix.large ? std::numeric_limits<double>::max() : 0;
    return prefix.negative ? -value : value;
}

float floatValue(std::string_view text) { return narrowed(doubleValue(text)); }

bool isUnsignedDecimal(std::string_view text, std::string_view decimalSeparator) {
    std::string_view rest = withoutLeadingBlanks(text);
    rest = rest.substr(0, rest.find_last_not_of(blanks) + 1);
    if (rest.starts_with('+'))
        rest.remove_prefix(1);
    const std::size_t whole = digitRun(rest, 0);
    rest.remove_prefix(whole);
    std::size_t fraction = 0;
    if (rest.starts_with(decimalSeparator)) {
        rest.remove_prefix(decimalSeparator.size());
        fraction = digitRun(rest, 0);
        rest.remove_prefix(fraction);
    }
    return rest.empty() && whole + fraction > 0;
}

bool boolValue(std::string_view text) {
    std::string_view rest = withoutLeadingBlanks(text);
    if (!rest.empty() && (rest[0] == '-' || rest[0] == '+'))
        rest.remove_prefix(1);
    const auto start = rest.find_first_not_of('0');
    if (start == std::string_view::npos)
        return false;
    const char c = rest[start];
    return isDigit(c) || c == 'Y' || c == 'y' || c == 'T' || c == 't';
}

std::int64_t truncated(double value) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (std::isnan(value))
        return 0;
    // 2^63 is exact in double precision, the largest 64-bit integer is not.
    constexpr double bound = 9223372036854775808.0;
    if (value >= bound)
        return Limits::max();
    if (value < -bound)
        return Limits::min();
    return static_cast<std::int64_t>(value);
}

float narrowed(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

int narrowed(std::int64_t value) {
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::string text(float value) {
    std::array<char, 32> buffer{};
    constexpr int significantDigits = 7;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                      std::chars_format::general, significantDigits);
    return {buffer.data(), result.ptr};
}

std::string text(std::int64_t value) { return std::to_string(value); }

} // namespace zarvil::numbers
