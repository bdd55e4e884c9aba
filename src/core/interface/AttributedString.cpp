#include "interface/AttributedString.h"

namespace zarvil {

void AttributedString::append(std::string text, TextAttributes attributes) {
    if (!text.empty())
        runs_.push_back({std::move(text), std::move(attributes)});
}

std::string AttributedString::text() const {
    std::string whole;
    for (const Run& run : runs_)
        whole += run.text;
    return whole;
}

std::optional<TextAttributes> AttributedString::attributesAt(std::size_t index) const {
    std::size_t end = 0;
    for (const Run& run : runs_) {
        end += run.text.size();
        if (index < end)
            return run.attributes;
    }
    return std::nullopt;
}

} // namespace zarvil
