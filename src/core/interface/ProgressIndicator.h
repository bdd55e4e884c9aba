#pragma once

#include "interface/View.h"

namespace zarvil {

/// A spinner: turns while something is under way.
class ProgressIndicator : public View {
public:
    void startAnimation() { animating_.set(true); }
    void stopAnimation() { animating_.set(false); }
    [[nodiscard]] bool isAnimating() const { return animating_.get(); }
    [[nodiscard]] const Property<bool>& animatingProperty() const { return animating_; }

private:
    Property<bool> animating_{false};
};

} // namespace zarvil
