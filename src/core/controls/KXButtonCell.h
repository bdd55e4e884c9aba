#pragma once

#include "interface/ButtonCell.h"
#include "platform/Canvas.h"
#include "platform/Pointer.h"
#include "platform/Time.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zarvil {

/// The cell of an on/off switch: a pill-shaped track with a knob, at the right when on. A click
/// flips it as any toggle; after a drag the side where the knob was let go decides.
class KXButtonCell final : public ButtonCell {
public:
    /// Without thresholds of the desktop it has its own. The clock must outlive the cell.
    KXButtonCell(std::optional<StickyClick> desktop, const Clock& clock);

    [[nodiscard]] static FocusRingType defaultFocusRingType() { return FocusRingType::Exterior; }

    // Properties.
    /// Label of the on state, left of the knob.
    void setOnTitle(std::string_view title) { _onTitle = title; }
    [[nodiscard]] const std::string& onTitle() const { return _onTitle; }
    /// Label of the off state, right of the knob.
    void setOffTitle(std::string_view title) { _offTitle = title; }
    [[nodiscard]] const std::string& offTitle() const { return _offTitle; }
    /// Whether the two titles are drawn beside the knob.
    void setShowStateExtras(bool show) { _showStateExtras = show; }
    [[nodiscard]] bool showStateExtras() const { return _showStateExtras; }
    /// Color of the titles; white when unset.
    void setFontColor(std::optional<Color> color) { _fontColor = color; }
    [[nodiscard]] std::optional<Color> fontColor() const { return _fontColor; }
    /// Fill under the track's gradient; nothing when unset.
    void setBackgroundColor(std::optional<Color> color) { _backgroundColor = color; }
    [[nodiscard]] std::optional<Color> backgroundColor() const { return _backgroundColor; }
    /// The images are kept and never drawn, on purpose: layouts set them.
    void setOnImage(std::shared_ptr<const Image> image) { _onImage = std::move(image); }
    [[nodiscard]] const std::shared_ptr<const Image>& onImage() const { return _onImage; }
    void setOffImage(std::shared_ptr<const Image> image) { _offImage = std::move(image); }
    [[nodiscard]] const std::shared_ptr<const Image>& offImage() const { return _offImage; }

    /// Thresholds below which a press is a click: seconds, and travel in points.
    [[nodiscard]] StickyClick stickyClick() const { return {_clickTimeout, _clickBias}; }

    // Mouse.
    [[nodiscard]] bool prefersTrackingUntilMouseUp() const override { return true; }
    [[nodiscard]] unsigned hitTestForEvent(Point location, Rect cellFrame,
                                           View* controlView) const override;
    bool startTrackingAt(Point start, View* controlView) override;
    bool continueTracking(Point last, Point current, View* controlView) override;
    /// After a drag this stores the opposite of the outcome, as the button advances the state once
    /// more when the press is complete.
    void stopTracking(Point last, Point stop, View* controlView, bool mouseIsUp) override;

    // Drawing.
    /// Draws all of the switch; no standard bezel, title or image. The frame is in the control
    /// view's coordinates.
    void drawWithFrame(const Rect& frame, View* controlView, Canvas& canvas) const;

private:
    struct Geometry;

    [[nodiscard]] bool isClick(Point stop) const;
    [[nodiscard]] Geometry geometry(const Rect& frame) const;
    void drawTrack(const Geometry& geometry, Canvas& canvas) const;
    void drawTitles(const Geometry& geometry, Canvas& canvas) const;
    void drawKnob(const Geometry& geometry, Canvas& canvas) const;

    const Clock& clock_;
    bool _tracking = false;
    /// Latest pointer position while tracking, in the control view's coordinates.
    Point _tracingPoint;
    Point _startTrackingPoint;
    /// Times of the latest tracking event and of mouse-down, in seconds of the clock.
    double _trackingTime = 0;
    double _startTrackingTime = 0;
    double _clickTimeout = 0;
    Size _clickBias;
    std::string _offTitle;
    std::string _onTitle;
    std::shared_ptr<const Image> _offImage;
    std::shared_ptr<const Image> _onImage;
    bool _showStateExtras = false;
    std::optional<Color> _fontColor;
    std::optional<Color> _backgroundColor;
};

} // namespace zarvil
