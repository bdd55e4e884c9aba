#pragma once

#include "interface/Geometry.h"
#include "interface/Property.h"

namespace zarvil {

/// Alpha values of dimming. Both widen a single-precision constant, as the originals do.
namespace alpha {

inline constexpr double dimmed = static_cast<double>(0.3F);
inline constexpr double dimmedCaption = 0.5;
inline constexpr double active = 1.0;

} // namespace alpha

/// What every element of a layout shows: visibility, dimming, place. Views have identity: they
/// are neither copied nor moved.
class View {
public:
    View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;
    virtual ~View() = default;

    void setHidden(bool hidden) { hidden_.set(hidden); }
    [[nodiscard]] bool isHidden() const { return hidden_.get(); }
    void setAlphaValue(double alpha, Transition transition = Transition::Immediate) {
        alpha_.set(alpha, transition);
    }
    [[nodiscard]] double alphaValue() const { return alpha_.get(); }
    /// In the superview's coordinates, in points; the front end keeps it current.
    void setFrame(Rect frame) { frame_.set(frame); }
    [[nodiscard]] Rect frame() const { return frame_.get(); }
    [[nodiscard]] Rect bounds() const { return {0, 0, frame().width, frame().height}; }

    [[nodiscard]] const Property<bool>& hiddenProperty() const { return hidden_; }
    [[nodiscard]] const Property<double>& alphaProperty() const { return alpha_; }
    [[nodiscard]] const Property<Rect>& frameProperty() const { return frame_; }

private:
    Property<bool> hidden_{false};
    Property<double> alpha_{alpha::active};
    Property<Rect> frame_;
};

} // namespace zarvil
