#include "interface/Button.h"

namespace zarvil {

Button::Button(ButtonKind kind, std::unique_ptr<ButtonCell> cell)
    : kind_(kind), cell_(std::move(cell)) {}

void Button::performClick() {
    if (isEnabled())
        completePress(state());
}

void Button::completePress(int stateBefore) {
    if (kind_ == ButtonKind::Toggle) {
        cell_->setNextState();
        if (state() == stateBefore)
            return;
    }
    sendAction();
}

void Button::setEnabled(bool enabled) {
    cell_->setEnabled(enabled);
    Control::setEnabled(enabled);
}

} // namespace zarvil
