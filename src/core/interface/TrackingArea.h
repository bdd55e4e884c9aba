#pragma once

#include "interface/Geometry.h"
#include "protocol/NonCopyable.h"

#include <memory>

namespace zarvil {

/// When a tracking area tells its view of the pointer, as bits numbered as on the original
/// platform.
namespace trackingOption {

inline constexpr unsigned mouseEnteredAndExited = 1;
inline constexpr unsigned activeInKeyWindow = 32;
inline constexpr unsigned activeAlways = 128;

} // namespace trackingOption

/// Base of what a tracking area can carry for its view; it offers capabilities beside it.
class TrackingDelegate : NonCopyable {
public:
    virtual ~TrackingDelegate() = default;
};

/// A part of a view, in the view's coordinates, whose view hears when the pointer comes and goes.
struct TrackingArea {
    Rect rect;
    unsigned options = 0;
    std::shared_ptr<TrackingDelegate> delegate; ///< may be null
};

} // namespace zarvil
