#pragma once

#include "interface/Symbol.h"

#include <string>

namespace zarvil {

/// Stands in place of a list's rows and says why there are none and what to do. A front end lays
/// it beside a dimmed list, not inside it, so that it stays legible.
class Placeholder : public View {
public:
    struct Text {
        Symbol symbol = Symbol::None;
        std::string title;
        std::string words; ///< below the title, muted
        friend bool operator==(const Text&, const Text&) = default;
    };

    [[nodiscard]] const Text& text() const { return text_.get(); }
    void setText(Text text) { text_.set(std::move(text)); }
    [[nodiscard]] const Property<Text>& textProperty() const { return text_; }

private:
    Property<Text> text_;
};

} // namespace zarvil
