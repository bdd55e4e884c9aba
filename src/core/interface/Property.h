#pragma once

#include "protocol/ObserverList.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace zarvil {

/// Whether a front end shows a change at once or lets it glide; the value is final at once.
enum class Transition : std::uint8_t { Immediate, Animated };

/// A value that tells its observers when it changes. Setting an equal value does nothing. An
/// observer is called with the current value when it subscribes.
template <typename Type>
class Property {
public:
    using Observer = std::function<void(const Type&, Transition)>;

    explicit Property(Type initial = {}) : value_(std::move(initial)) {}

    [[nodiscard]] const Type& get() const { return value_; }

    void set(Type value, Transition transition = Transition::Immediate) {
        if (value_ == value)
            return;
        value_ = std::move(value);
        observers_.notify(value_, transition);
    }

    Subscription observe(Observer observer) const {
        observer(value_, Transition::Immediate);
        return observers_.add(std::move(observer));
    }

private:
    Type value_;
    // Observing changes nothing that the value's reader can see.
    mutable ObserverList<const Type&, Transition> observers_;
};

} // namespace zarvil
