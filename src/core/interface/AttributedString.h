#pragma once

#include "interface/Color.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zarvil {

enum class TextAlignment : std::uint8_t { Left, Right, Centered };
enum class UnderlineStyle : std::uint8_t { None, Single };

/// How a stretch of text looks; what is not set follows the surroundings.
struct TextAttributes {
    std::optional<Color> foregroundColor;
    std::optional<TextAlignment> alignment;
    UnderlineStyle underlineStyle = UnderlineStyle::None;
    /// Address that the text leads to.
    std::optional<std::string> link;

    friend bool operator==(const TextAttributes&, const TextAttributes&) = default;
};

/// UTF-8 text in consecutive runs of equal attributes.
class AttributedString {
public:
    AttributedString() = default;
    AttributedString(std::string text, TextAttributes attributes) {
        append(std::move(text), std::move(attributes));
    }

    /// Adds a run at the end; empty text adds nothing.
    void append(std::string text, TextAttributes attributes);

    [[nodiscard]] std::string text() const;
    [[nodiscard]] bool empty() const { return runs_.empty(); }
    /// The attributes at a byte index; none behind the end.
    [[nodiscard]] std::optional<TextAttributes> attributesAt(std::size_t index) const;

    /// A stretch of text whose attributes are all the same; never empty.
    struct Run {
        std::string text;
        TextAttributes attributes;
        friend bool operator==(const Run&, const Run&) = default;
    };
    [[nodiscard]] const std::vector<Run>& runs() const { return runs_; }

    friend bool operator==(const AttributedString&, const AttributedString&) = default;

private:
    std::vector<Run> runs_;
};

} // namespace zarvil
