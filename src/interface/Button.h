#pragma once

#include "interface/AttributedString.h"
#include "interface/ButtonCell.h"
#include "interface/Control.h"

#include <cstdint>
#include <memory>

namespace zarvil {

/// Whether a click only sends the action or turns the button on or off before that.
enum class ButtonKind : std::uint8_t { Momentary, Toggle };

/// A push button, check box or switch. Owns its cell, which holds the state.
class Button : public Control {
public:
    explicit Button(ButtonKind kind = ButtonKind::Momentary,
                    std::unique_ptr<ButtonCell> cell = std::make_unique<ButtonCell>());

    // Events in.
    /// A click or its keyboard equivalent; a disabled button ignores it.
    void performClick();
    /// Advances a toggle's state and sends the action, as a completed press does.
    void completePress();

    // State.
    void setEnabled(bool enabled) override;
    void setState(int state) { cell_->setState(state); }
    [[nodiscard]] int state() const { return cell_->state(); }
    void setTitle(std::string_view title) { title_.set(std::string(title)); }
    [[nodiscard]] const std::string& title() const { return title_.get(); }
    void setAttributedTitle(AttributedString title) { attributedTitle_.set(std::move(title)); }
    [[nodiscard]] const AttributedString& attributedTitle() const { return attributedTitle_.get(); }

    [[nodiscard]] ButtonKind kind() const { return kind_; }
    [[nodiscard]] ButtonCell& cell() { return *cell_; }
    /// The cell if it is of this class, else null.
    template <typename Cell>
    [[nodiscard]] Cell* cellAs() {
        return dynamic_cast<Cell*>(cell_.get());
    }

    [[nodiscard]] const Property<int>& stateProperty() const { return cell_->stateProperty(); }
    [[nodiscard]] const Property<std::string>& titleProperty() const { return title_; }
    [[nodiscard]] const Property<AttributedString>& attributedTitleProperty() const {
        return attributedTitle_;
    }

private:
    ButtonKind kind_;
    std::unique_ptr<ButtonCell> cell_;
    Property<std::string> title_;
    Property<AttributedString> attributedTitle_;
};

} // namespace zarvil
