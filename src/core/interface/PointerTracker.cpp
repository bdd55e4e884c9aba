#include "interface/PointerTracker.h"

#include "interface/View.h"

#include <algorithm>

namespace zarvil {

namespace {

bool isActive(const TrackingArea& area, WindowActivity activity) {
    if (!(area.options & trackingOption::mouseEnteredAndExited))
        return false;
    return (area.options & trackingOption::activeAlways) ||
           ((area.options & trackingOption::activeInKeyWindow) && activity == WindowActivity::Key);
}

} // namespace

bool PointerTracker::isInside(const TrackingArea* area) const {
    return std::ranges::find(inside_, area, [](const auto& listed) { return listed.get(); }) !=
           inside_.end();
}

void PointerTracker::update(std::optional<Point> location, WindowActivity activity) {
    // A copy: what the view does when it hears of the pointer may change its areas.
    const auto areas = view_.trackingAreas();
    std::erase_if(inside_,
                  [&](const auto& area) { return std::ranges::find(areas, area) == areas.end(); });
    for (const auto& area : areas) {
        const bool contains =
            location && isActive(*area, activity) && area->rect.contains(*location);
        if (contains == isInside(area.get()))
            continue;
        if (contains) {
            inside_.push_back(area);
            view_.mouseEntered(area.get());
        } else {
            std::erase(inside_, area);
            view_.mouseExited(area.get());
        }
    }
}

} // namespace zarvil
