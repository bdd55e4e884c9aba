#pragma once

#include "raster/TextMask.h"

namespace zarvil::qt {

/// Texts in the application's font.
class QtTextMask final : public TextMask {
public:
    [[nodiscard]] Size sizeOfText(std::string_view text, double fontSize) const override;
    void draw(const MaskedText& text, const MaskBuffer& buffer) override;
};

} // namespace zarvil::qt
