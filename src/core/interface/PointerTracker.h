#pragma once

#include "interface/Geometry.h"
#include "interface/TrackingArea.h"
#include "protocol/NonCopyable.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace zarvil {

class View;

/// Whether the view's window is the one that takes the keyboard.
enum class WindowActivity : std::uint8_t { Key, NotKey };

/// Tells a view of the pointer's coming and going over its tracking areas, once each.
class PointerTracker : NonCopyable {
public:
    /// The view must outlive the tracker.
    explicit PointerTracker(View& view) : view_(view) {}

    /// To be called when the pointer moves and when the window's activity changes. The location is
    /// in the view's coordinates; none when the pointer is outside the view. A window that loses
    /// the keyboard counts as left by the areas that are only active in a key window.
    void update(std::optional<Point> location, WindowActivity activity);

private:
    [[nodiscard]] bool isInside(const TrackingArea* area) const;

    View& view_;
    std::vector<std::shared_ptr<const TrackingArea>> inside_;
};

} // namespace zarvil
