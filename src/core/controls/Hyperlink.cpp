#include "controls/Hyperlink.h"

namespace zarvil {

AttributedString hyperlinkFromString(std::string text, std::string_view /*url*/) {
    TextAttributes attributes;
    attributes.foregroundColor = color::blue;
    attributes.underlineStyle = UnderlineStyle::Single;
    attributes.alignment = TextAlignment::Centered;
    return {std::move(text), attributes};
}

} // namespace zarvil
