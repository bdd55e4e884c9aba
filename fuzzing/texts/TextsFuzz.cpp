#include "Input.h"
#include "alerts/EmailAddress.h"
#include "interface/DisplayText.h"
#include "protocol/Numbers.h"
#include "protocol/Utf8.h"
#include "protocol/Value.h"

#include <regex>

/// Any bytes as a text that is shown, read as a number, sorted or taken for an address.
namespace zarvil::fuzz {

namespace {

void checkShown(const std::string& text) {
    constexpr std::size_t ellipsis = 16;
    for (const std::size_t limit : {std::size_t{24}, longestShownLine}) {
        const std::string shown = showableText(text, limit);
        require(isValidUtf8(shown), "what is shown is UTF-8");
        // A character that is replaced may grow from one byte to three.
        require(shown.size() <= 3 * (limit + ellipsis), "what is shown is short");
        for (const char character : shown)
            require(static_cast<unsigned char>(character) >= ' ' && character != '\x7F',
                    "no control character is shown");
        require(showableText(shown, 4 * longestShownMessage) == shown, "shown text stays as it is");
    }
    static_cast<void>(showableText(text, longestShownLine, LineBreaks::Kept));
}

void checkAddress(const std::string& text) {
    static const std::regex pattern(R"([A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4})");
    constexpr std::size_t longest =
        40; // the reference takes long, and calls itself for every character
    if (text.size() <= longest && text.find('@') != std::string::npos &&
        text.find_first_of("\n\r\0\x85", 0, 4) == std::string::npos)
        require(matchesEmailPattern(text) == std::regex_match(text, pattern), "an address");
}

void checkNumber(const std::string& text) {
    const std::int64_t whole = numbers::integerValue(text);
    require(numbers::integerValue(numbers::text(whole)) == whole, "a whole number and its text");
    const float number = numbers::floatValue(text);
    require(number == number, "no text is no number");
    static_cast<void>(numbers::truncated(numbers::doubleValue(text)));
    if (numbers::isUnsignedDecimal(text, "."))
        require(numbers::doubleValue(text) >= 0, "an unsigned number");
    const Value value(text);
    static_cast<void>(value.boolValue());
    require(value.integerValue() == whole, "a text as a value");
}

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace zarvil;
    fuzz::Input input(bytes, size);
    const std::string text = input.rest();
    fuzz::checkShown(text);
    fuzz::checkAddress(text);
    fuzz::checkNumber(text);
    static_cast<void>(naturalSortKey(text));
    return 0;
}
