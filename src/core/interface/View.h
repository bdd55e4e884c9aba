#pragma once

#include "interface/Geometry.h"
#include "interface/Property.h"
#include "interface/TrackingArea.h"
#include "protocol/NonCopyable.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace zarvil {

/// Alpha values of dimming. Both widen a single-precision constant, as on the original
/// platform.
namespace alpha {

inline constexpr double dimmed = static_cast<double>(0.3F);
inline constexpr double dimmedCaption = 0.5;
inline constexpr double active = 1.0;

} // namespace alpha

/// What every element of a layout shows: visibility, dimming, place. Views have identity: they
/// are neither copied nor moved.
class View : NonCopyable {
public:
    virtual ~View() = default;

    void setHidden(bool hidden) { hidden_.set(hidden); }
    [[nodiscard]] bool isHidden() const { return hidden_.get(); }
    void setAlphaValue(double alpha, Transition transition = Transition::Immediate) {
        alpha_.set(alpha, transition);
    }
    [[nodiscard]] double alphaValue() const { return alpha_.get(); }
    /// In the superview's coordinates, in points; the front end keeps it current.
    void setFrame(Rect frame) { frame_ = frame; }
    [[nodiscard]] Rect frame() const { return frame_; }
    [[nodiscard]] Rect bounds() const { return {0, 0, frame().width, frame().height}; }

    void addTrackingArea(std::shared_ptr<const TrackingArea> area) {
        trackingAreas_.push_back(std::move(area));
    }
    void removeTrackingArea(const TrackingArea& area) {
        std::erase_if(trackingAreas_, [&](const auto& listed) { return listed.get() == &area; });
    }
    [[nodiscard]] const std::vector<std::shared_ptr<const TrackingArea>>& trackingAreas() const {
        return trackingAreas_;
    }
    /// The pointer came into or left a tracking area of this view; null when the event has none.
    virtual void mouseEntered(const TrackingArea* /*area*/) {}
    virtual void mouseExited(const TrackingArea* /*area*/) {}

    [[nodiscard]] const Property<bool>& hiddenProperty() const { return hidden_; }
    [[nodiscard]] const Property<double>& alphaProperty() const { return alpha_; }

private:
    Property<bool> hidden_{false};
    Property<double> alpha_{alpha::active};
    Rect frame_;
    std::vector<std::shared_ptr<const TrackingArea>> trackingAreas_;
};

} // namespace zarvil
