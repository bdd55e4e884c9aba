#pragma once

#include "interface/View.h"
#include "platform/Canvas.h"
#include "protocol/NonCopyable.h"

#include <memory>

namespace zarvil {

/// Capabilities of a delegate that runs a countdown; it may have either, both or none.
class TimerPausing : NonCopyable {
public:
    virtual ~TimerPausing() = default;
    virtual void pauseTimer() = 0;
};

class TimerResuming : NonCopyable {
public:
    virtual ~TimerResuming() = default;
    virtual void resumeTimer() = 0;
};

/// A bevelled dark panel with an etched groove 40 points below its top edge. Its y grows upwards.
/// The panel's picture is made once and used again until the view's size changes.
class ZVMessageView final : public View {
public:
    /// Makes the picture at once. The renderer must outlive the view.
    explicit ZVMessageView(ImageRenderer& renderer, Rect frame = {});
    ~ZVMessageView() override;

    /// A new picture of the bounds' size.
    [[nodiscard]] std::shared_ptr<const Image> generateBackground() const;
    /// Null makes the view draw its groove alone.
    void setBackground(std::shared_ptr<const Image> image) { _background = std::move(image); }
    [[nodiscard]] const std::shared_ptr<const Image>& background() const { return _background; }

    /// Pauses the delegate's countdown while the pointer is over the view. Every call adds an area
    /// and forgets the earlier one without removing it, on purpose: both delegates go on hearing.
    void setupTracking(std::shared_ptr<TrackingDelegate> delegate);
    void mouseEntered(const TrackingArea* trackingArea) override;
    void mouseExited(const TrackingArea* trackingArea) override;

    /// Expects a canvas whose y grows upwards. Makes the picture anew when the size has changed.
    void drawRect(Canvas& canvas);

    /// Reserved: the view neither sets nor draws it.
    std::unique_ptr<Shadow> shadow;

private:
    ImageRenderer& renderer_;
    std::shared_ptr<const TrackingArea> area; ///< the latest one
    std::shared_ptr<const Image> _background;
};

} // namespace zarvil
