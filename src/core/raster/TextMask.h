#pragma once

#include "interface/AttributedString.h"
#include "interface/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zarvil {

/// A byte of coverage a pixel, row by row from the top. The memory is the canvas's.
struct MaskBuffer {
    int width;
    int height;
    std::size_t bytesPerRow; ///< a multiple of four
    std::uint8_t* bytes;
};

struct MaskedText {
    std::string_view text;
    double fontSize; ///< in points, not a whole number in general
    double scale;    ///< pixels a point
    /// In pixels of the buffer, not whole ones in general, y growing downwards. The text starts at
    /// its upper edge.
    Rect box;
    TextAlignment alignment;
    /// Whether the text is wider than its box and breaks into lines.
    bool wraps;
};

/// What a toolkit lends a software canvas: its texts in the system's font, as coverage.
class TextMask {
public:
    TextMask() = default;
    TextMask(const TextMask&) = delete;
    TextMask& operator=(const TextMask&) = delete;
    virtual ~TextMask() = default;

    /// Of one line, in points, the same at every scale.
    [[nodiscard]] virtual Size sizeOfText(std::string_view text, double fontSize) const = 0;
    /// Writes into a buffer of zeros; what lies outside it is left out.
    virtual void draw(const MaskedText& text, const MaskBuffer& buffer) = 0;
};

} // namespace zarvil
