#include "alerts/EmailAddress.h"

#include <algorithm>

namespace zarvil {

namespace {

// Letters and digits are those of ASCII, whatever the locale.
bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isLetterOrDigit(char c) { return isLetter(c) || (c >= '0' && c <= '9'); }

bool isLocalCharacter(char c) {
    return isLetterOrDigit(c) || std::string_view("._%+-").find(c) != std::string_view::npos;
}

bool isDomainCharacter(char c) { return isLetterOrDigit(c) || c == '.' || c == '-'; }

template <typename Predicate>
bool isRunOf(std::string_view text, Predicate predicate) {
    return !text.empty() && std::ranges::all_of(text, predicate);
}

} // namespace

bool matchesEmailPattern(std::string_view text) {
    constexpr std::size_t shortestTopLevel = 2;
    constexpr std::size_t longestTopLevel = 4;
    // Neither side of the pattern admits an at sign and the top level admits no dot, so the first
    // at sign and the last dot are the only places where the text can be divided.
    const auto at = text.find('@');
    const auto dot = text.rfind('.');
    if (at == std::string_view::npos || dot == std::string_view::npos || dot < at)
        return false;
    const std::string_view topLevel = text.substr(dot + 1);
    return topLevel.size() >= shortestTopLevel && topLevel.size() <= longestTopLevel &&
           isRunOf(topLevel, isLetter) && isRunOf(text.substr(0, at), isLocalCharacter) &&
           isRunOf(text.substr(at + 1, dot - at - 1), isDomainCharacter);
}

} // namespace zarvil
