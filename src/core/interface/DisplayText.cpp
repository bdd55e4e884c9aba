#include "interface/DisplayText.h"

#include "protocol/Utf8.h"

#include <algorithm>
#include <array>

namespace zarvil {

namespace {

constexpr std::string_view replacement = "\uFFFD";
constexpr std::string_view ellipsis = "\u2026";
constexpr std::size_t longestSequence = 4; // bytes

char32_t decoded(std::string_view sequence) {
    const auto lead = static_cast<unsigned char>(sequence.front());
    if (sequence.size() == 1)
        return lead;
    constexpr std::array<unsigned, 5> leadBits{0, 0, 0x1F, 0x0F, 0x07};
    char32_t character = lead & leadBits[sequence.size()];
    for (const char byte : sequence.substr(1))
        character = (character << 6) | (static_cast<unsigned char>(byte) & 0x3FU);
    return character;
}

bool isBetween(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

/// C1 controls, line and paragraph separators, embeddings, overrides and isolates, and the
/// formatting characters that Unicode has given up. Marks that only hint at a direction stay.
bool disturbs(char32_t character) {
    return isBetween(character, 0x80, 0x9F) || isBetween(character, 0x2028, 0x202E) ||
           isBetween(character, 0x2066, 0x206F) || isBetween(character, 0xFFF9, 0xFFFB) ||
           isBetween(character, 0xE0000, 0xE007F);
}

void appendControlPicture(std::string& text, char control) {
    constexpr char deleteCharacter = 0x7F;
    constexpr char lastByteOfNul = '\x80';
    constexpr char lastByteOfDelete = '\xA1';
    text += "\xE2\x90";
    text +=
        control == deleteCharacter ? lastByteOfDelete : static_cast<char>(lastByteOfNul + control);
}

bool isControl(char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; }

std::string showable(std::string_view utf8, LineBreaks lineBreaks) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::size_t length = utf8SequenceLength(utf8);
        const std::string_view sequence = utf8.substr(0, std::max<std::size_t>(length, 1));
        const char first = sequence.front();
        const bool keeps = lineBreaks == LineBreaks::Kept;
        if (length == 0 || (length > 1 && disturbs(decoded(sequence))))
            text += replacement;
        else if (keeps && utf8.starts_with("\r\n"))
            ; // The line feed that follows ends the line.
        else if (isControl(first) && !(keeps && (first == '\n' || first == '\t')))
            appendControlPicture(text, first);
        else
            text += sequence;
        utf8.remove_prefix(sequence.size());
    }
    return text;
}

/// The nearest start of a character at or behind a place, a few bytes on at the most.
std::size_t characterStart(std::string_view utf8, std::size_t place) {
    const std::size_t end = std::min(place + longestSequence, utf8.size());
    while (place < end && (static_cast<unsigned char>(utf8[place]) & 0xC0U) == 0x80U)
        ++place;
    return place;
}

bool isAscii(char character) { return static_cast<unsigned char>(character) < 0x80; }

bool isDigit(char character) { return character >= '0' && character <= '9'; }

/// U+00C0 to U+00FF, small and without accents; the others stand for themselves.
constexpr std::string_view latinLetters =
    "aaaaaa?ceeeeiiii?nooooo?ouuuuy??aaaaaa?ceeeeiiii?nooooo?ouuuuy?y";

void appendFolded(std::string& key, std::string_view sequence) {
    constexpr char32_t firstLatin = 0xC0;
    const char32_t character = decoded(sequence);
    const bool isLatin = isBetween(character, firstLatin, 0xFF);
    if (isLatin && latinLetters[character - firstLatin] != '?')
        key += latinLetters[character - firstLatin];
    else
        key += sequence;
}

/// The number's length goes before its digits, so that a longer number follows a shorter one.
std::size_t appendNumber(std::string& key, std::string_view text) {
    const auto* const behind = std::ranges::find_if_not(text, isDigit);
    const auto end = static_cast<std::size_t>(behind - text.begin());
    const std::size_t first = std::min(text.find_first_not_of('0'), end);
    const std::size_t digits = end - first; // in two bytes: below `longestShownLine`
    key += '0';
    key += static_cast<char>(digits / 256);
    key += static_cast<char>(digits % 256);
    key += text.substr(first, digits);
    return end;
}

} // namespace

std::string showableText(std::string_view utf8, std::size_t limit, LineBreaks lineBreaks) {
    if (utf8.size() <= limit)
        return showable(utf8, lineBreaks);
    std::string text;
    if (lineBreaks == LineBreaks::Kept) {
        text = showable(utf8.substr(0, characterStart(utf8, limit)), lineBreaks);
        return text.append(ellipsis);
    }
    text = showable(utf8.substr(0, characterStart(utf8, limit / 2)), lineBreaks);
    const std::size_t tail = characterStart(utf8, utf8.size() - limit / 2);
    return text.append(ellipsis).append(showable(utf8.substr(tail), lineBreaks));
}

std::string naturalSortKey(std::string_view utf8) {
    std::string key;
    utf8 = utf8.substr(0, longestShownLine);
    while (!utf8.empty()) {
        const char first = utf8.front();
        std::size_t length = 1;
        if (isDigit(first)) {
            length = appendNumber(key, utf8);
        } else if (isAscii(first)) {
            key += first >= 'A' && first <= 'Z' ? static_cast<char>(first - 'A' + 'a') : first;
        } else {
            length = std::max(utf8SequenceLength(utf8), length);
            appendFolded(key, utf8.substr(0, length));
        }
        utf8.remove_prefix(length);
    }
    return key;
}

} // namespace zarvil
