#include "qt/devices/DisplayText.h"

namespace zarvil::qt {

namespace {

constexpr char16_t replacement = 0xFFFD;
constexpr char16_t ellipsis = 0x2026;

/// Embeddings, overrides and isolates. The marks that only hint at a direction stay.
bool reordersText(char16_t c) {
    return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
}

bool isLineBreak(char16_t c) { return c == 0x2028 || c == 0x2029; }

char16_t shown(char16_t c) {
    constexpr char16_t controlPictures = 0x2400;
    constexpr char16_t deletePicture = 0x2421;
    if (c < 0x20)
        return static_cast<char16_t>(controlPictures + c);
    if (c == 0x7F)
        return deletePicture;
    if ((c >= 0x80 && c < 0xA0) || reordersText(c) || isLineBreak(c))
        return replacement;
    return c;
}

QString readable(std::string_view utf8) {
    QString text = QString::fromUtf8(utf8);
    for (QChar& c : text)
        c = QChar(shown(c.unicode()));
    return text;
}

bool continuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// The nearest start of a character at or behind a place, a few bytes on at the most.
std::size_t characterStart(std::string_view utf8, std::size_t place) {
    constexpr std::size_t longestCharacter = 4;
    const std::size_t end = place + longestCharacter;
    while (place < end && place < utf8.size() && continuesCharacter(utf8[place]))
        ++place;
    return place;
}

} // namespace

QString displayText(std::string_view utf8, std::size_t limit) {
    if (utf8.size() <= limit)
        return readable(utf8);
    const std::size_t headEnd = characterStart(utf8, limit / 2);
    const std::size_t tailStart = characterStart(utf8, utf8.size() - limit / 2);
    return readable(utf8.substr(0, headEnd)) + QChar(ellipsis) + readable(utf8.substr(tailStart));
}

} // namespace zarvil::qt
