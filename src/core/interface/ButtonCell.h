#pragma once

#include "interface/Geometry.h"
#include "interface/Property.h"
#include "protocol/NonCopyable.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zarvil {

class ButtonCell;
class View;

/// States of a two-state button. Mixed is neither; a click turns it on.
namespace buttonState {

inline constexpr int mixed = -1;
inline constexpr int off = 0;
inline constexpr int on = 1;

} // namespace buttonState

/// Where a cell shows that it has the keyboard focus; numbered as on the original platform.
enum class FocusRingType : std::uint8_t { Default = 0, None = 1, Exterior = 2 };

/// What a point of a cell is, as bits; numbered as on the original platform.
namespace cellHit {

inline constexpr unsigned none = 0;
inline constexpr unsigned contentArea = 1;
inline constexpr unsigned trackableArea = 4;

} // namespace cellHit

/// Capability of a control view that can redraw one cell at once.
class CellDrawing : NonCopyable {
public:
    virtual ~CellDrawing() = default;

    virtual void drawCell(ButtonCell& cell) = 0;
};

/// The part of a button that holds its state and follows the mouse. This base is the standard
/// button; drawn controls derive from it. Points are in the control view's coordinates.
class ButtonCell : NonCopyable {
public:
    virtual ~ButtonCell() = default;

    void setState(int state) { state_.set(state); }
    [[nodiscard]] int state() const { return state_.get(); }
    [[nodiscard]] const Property<int>& stateProperty() const { return state_; }
    /// Advances as a click does: on becomes off, anything else becomes on.
    void setNextState() {
        setState(state() == buttonState::on ? buttonState::off : buttonState::on);
    }

    void setTitle(std::string_view title) { title_.set(std::string(title)); }
    [[nodiscard]] const std::string& title() const { return title_.get(); }
    [[nodiscard]] const Property<std::string>& titleProperty() const { return title_; }

    void setEnabled(bool enabled) { enabled_ = enabled; }
    [[nodiscard]] bool isEnabled() const { return enabled_; }
    /// Pressed, with the pointer over it.
    void setHighlighted(bool highlighted) { highlighted_.set(highlighted); }
    [[nodiscard]] bool isHighlighted() const { return highlighted_.get(); }
    [[nodiscard]] const Property<bool>& highlightedProperty() const { return highlighted_; }

    void setFocusRingType(FocusRingType type) { focusRingType_ = type; }
    [[nodiscard]] FocusRingType focusRingType() const { return focusRingType_; }

    /// Bits of `cellHit` for a point in the control view's coordinates.
    [[nodiscard]] virtual unsigned hitTestForEvent(Point location, Rect cellFrame,
                                                   View* /*controlView*/) const {
        return cellFrame.contains(location) ? cellHit::contentArea | cellHit::trackableArea
                                            : cellHit::none;
    }
    /// Whether a press goes on wherever the pointer moves, until the button is released.
    [[nodiscard]] virtual bool prefersTrackingUntilMouseUp() const { return false; }
    /// Mouse-down; false ends the tracking at once. `controlView` may be null throughout.
    virtual bool startTrackingAt(Point /*start*/, View* /*controlView*/) { return true; }
    virtual bool continueTracking(Point /*last*/, Point /*current*/, View* /*controlView*/) {
        return true;
    }
    virtual void stopTracking(Point /*last*/, Point /*stop*/, View* /*controlView*/,
                              bool /*mouseIsUp*/) {}

private:
    Property<int> state_{buttonState::off};
    Property<std::string> title_;
    Property<bool> highlighted_{false};
    FocusRingType focusRingType_ = FocusRingType::Default;
    bool enabled_ = true;
};

} // namespace zarvil
