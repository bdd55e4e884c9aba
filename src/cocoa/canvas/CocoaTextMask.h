#pragma once

#include "raster/TextMask.h"

#include <cstdint>
#include <list>
#include <string>
#include <vector>

namespace zarvil::cocoa {

/// Text by AppKit, in the system's font. It stands at whole pixels.
class CocoaTextMask final : public TextMask {
public:
    [[nodiscard]] Size sizeOfText(std::string_view text, double fontSize) const override;
    void draw(const MaskedText& text, const MaskBuffer& buffer) override;

private:
    struct Key {
        std::string text;
        double pixelSize;
        int width;
        int height;
        TextAlignment alignment;
        friend bool operator==(const Key&, const Key&) = default;
    };
    /// The coverage of a text's box, row by row.
    struct Drawn {
        Key key;
        std::vector<std::uint8_t> coverage;
    };

    const Drawn& drawn(const Key& key);

    /// The latest first: reading pixels back from the system is dear, and a control that is
    /// dragged draws the same few texts over and over.
    std::list<Drawn> recent_;
};

} // namespace zarvil::cocoa
