#pragma once

#include "interface/View.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zarvil {

/// One right that a lock asks for. This system's rights carry no value.
struct AuthorizationRight {
    std::string name;
    std::size_t valueLength = 0;
    unsigned flags = 0;
    friend bool operator==(const AuthorizationRight&, const AuthorizationRight&) = default;
};

/// States of the lock, numbered as on the original platform.
namespace authorizationState {

inline constexpr int startup = 0;
inline constexpr int locked = 1;
inline constexpr int inProgress = 2;
inline constexpr int unlocked = 3;

} // namespace authorizationState

/// A lock that the user opens by authenticating. It decides nothing: a click and a wish for a
/// fresh status go to `onClick` and `onUpdateStatus`, the outcome comes back by `show`.
class AuthorizationView : public View {
public:
    void setAuthorizationRights(std::vector<AuthorizationRight> rights) {
        rights_ = std::move(rights);
    }
    [[nodiscard]] const std::vector<AuthorizationRight>& authorizationRights() const {
        return rights_;
    }
    /// Not owned; told nothing, the controller implements none of a delegate's callbacks.
    void setDelegate(const void* delegate) { delegate_ = delegate; }
    [[nodiscard]] const void* delegate() const { return delegate_; }

    // Events in.
    void performClick() {
        if (onClick)
            onClick();
    }
    void updateStatus() {
        if (onUpdateStatus)
            onUpdateStatus();
    }

    // State.
    /// The reason says in words why the lock is as it is; empty when there is nothing to say.
    void show(int state, std::string reason) {
        reason_.set(std::move(reason));
        state_.set(state);
    }
    [[nodiscard]] int authorizationState() const { return state_.get(); }
    [[nodiscard]] const Property<int>& stateProperty() const { return state_; }
    [[nodiscard]] const Property<std::string>& reasonProperty() const { return reason_; }

    // Callbacks.
    std::function<void()> onClick;
    std::function<void()> onUpdateStatus;

private:
    std::vector<AuthorizationRight> rights_;
    const void* delegate_ = nullptr;
    Property<int> state_{authorizationState::startup};
    Property<std::string> reason_;
};

} // namespace zarvil
