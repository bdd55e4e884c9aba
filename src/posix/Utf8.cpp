#include "posix/Utf8.h"

#include "interface/DisplayText.h"

namespace zarvil::posix {

std::string printableLine(std::string_view bytes) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const std::size_t first = bytes.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return showableText(bytes.substr(first, bytes.find_last_not_of(blanks) - first + 1),
                        longestShownMessage);
}

} // namespace zarvil::posix
