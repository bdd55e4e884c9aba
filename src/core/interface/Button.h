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
class Button : public Control, public CellDrawing {
public:
    explicit Button(ButtonKind kind = ButtonKind::Momentary,
                    std::unique_ptr<ButtonCell> cell = std::make_unique<ButtonCell>());

    // Events in.
    /// A click or its keyboard equivalent; a disabled button ignores it.
    void performClick();
    /// Advances a toggle's state and sends the action. A toggle that this leaves as it was before
    /// the press ended sends nothing.
    void completePress(int stateBefore);

    // State.
    void setEnabled(bool enabled) override;
    void setState(int state) { cell_->setState(state); }
    [[nodiscard]] int state() const { return cell_->state(); }
    void setOn(bool on) { setState(on ? buttonState::on : buttonState::off); }
    /// The state as a boolean: all but off is on, mixed included.
    [[nodiscard]] bool isOn() const { return state() != buttonState::off; }
    void setTitle(std::string_view title) { cell_->setTitle(title); }
    [[nodiscard]] const std::string& title() const { return cell_->title(); }
    void setAttributedTitle(AttributedString title) { attributedTitle_.set(std::move(title)); }
    [[nodiscard]] const AttributedString& attributedTitle() const { return attributedTitle_.get(); }

    void drawCell(ButtonCell& /*cell*/) override { drawCell_.notify(); }
    /// Called whenever the cell must be redrawn at once; not replayed.
    Subscription observeDrawCell(std::function<void()> observer) {
        return drawCell_.add(std::move(observer));
    }

    [[nodiscard]] ButtonKind kind() const { return kind_; }
    [[nodiscard]] ButtonCell& cell() { return *cell_; }
    /// The cell if it is of this class, else null.
    template <typename Cell>
    [[nodiscard]] Cell* cellAs() {
        return dynamic_cast<Cell*>(cell_.get());
    }

    [[nodiscard]] const Property<int>& stateProperty() const { return cell_->stateProperty(); }
    [[nodiscard]] const Property<std::string>& titleProperty() const {
        return cell_->titleProperty();
    }
    [[nodiscard]] const Property<AttributedString>& attributedTitleProperty() const {
        return attributedTitle_;
    }

private:
    ButtonKind kind_;
    std::unique_ptr<ButtonCell> cell_;
    Property<AttributedString> attributedTitle_;
    ObserverList<> drawCell_;
};

} // namespace zarvil
