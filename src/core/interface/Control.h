#pragma once

#include "interface/View.h"
#include "protocol/NonCopyable.h"

#include <string>
#include <string_view>

namespace zarvil {

class Control;

/// Receives the actions of controls under their wire names, such as "toggleShowIcon:".
class ActionTarget : NonCopyable {
public:
    virtual ~ActionTarget() = default;

    /// The sender is null when no control sent the action. Unknown actions are left alone.
    virtual void performAction(std::string_view action, Control* sender) = 0;
};

/// A view that the user operates. Knows its action by name and its target by reference.
class Control : public View {
public:
    virtual void setEnabled(bool enabled) { enabled_.set(enabled); }
    [[nodiscard]] bool isEnabled() const { return enabled_.get(); }
    [[nodiscard]] const Property<bool>& enabledProperty() const { return enabled_; }

    /// The target is not owned and must outlive the control's use.
    void setTarget(ActionTarget* target) { target_ = target; }
    [[nodiscard]] ActionTarget* target() const { return target_; }
    void setAction(std::string_view action) { action_ = action; }
    [[nodiscard]] const std::string& action() const { return action_; }

    void sendAction() {
        if (target_ && !action_.empty())
            target_->performAction(std::string(action_), this);
    }

private:
    Property<bool> enabled_{true};
    ActionTarget* target_ = nullptr;
    std::string action_;
};

} // namespace zarvil
