#include "Cases.h"

#include "controls/KXButtonCell.h"
#include "controls/ZVCollectionNoteView.h"
#include "controls/ZVMessageView.h"
#include "controls/ZVMessageViewButton.h"
#include "raster/RasterImage.h"

#include <optional>

namespace zarvil::gallery {

namespace {

class StandingClock final : public Clock {
public:
    [[nodiscard]] double timeIntervalSinceReferenceDate() const override { return 0; }
};

constexpr Rect standardFrame{0, 0, 60, 26};
constexpr Rect movedFrame{7, 4, 60, 26};
constexpr Size movedView{72, 34};

/// What sets one picture of a switch apart.
struct SwitchCase {
    std::string name;
    int state = buttonState::off;
    Rect frame = standardFrame;
    Size viewSize = standardFrame.size();
    bool enabled = true;
    bool extras = false;
    std::optional<Color> background = {};
    std::optional<double> dragTo = {}; ///< pointer x of a drag that began at x 10
};

void drawSwitch(const SwitchCase& shown, Canvas& canvas) {
    const StandingClock clock;
    KXButtonCell cell(std::nullopt, clock);
    cell.setState(shown.state);
    cell.setEnabled(shown.enabled);
    cell.setBackgroundColor(shown.background);
    if (shown.extras) {
        cell.setOnTitle("Min");
        cell.setOffTitle("Sec");
        cell.setShowStateExtras(true);
    }
    if (shown.dragTo) {
        const Point start{10, shown.frame.height / 2};
        cell.startTrackingAt(start, nullptr);
        cell.continueTracking(start, {*shown.dragTo, start.y}, nullptr);
    }
    cell.drawWithFrame(shown.frame, nullptr, canvas);
}

std::vector<SwitchCase> switchCases() {
    constexpr int on = buttonState::on;
    constexpr Rect big{0, 0, 120, 40};
    return {
        {.name = "switch_off"},
        {.name = "switch_on", .state = on},
        {.name = "switch_mixed", .state = buttonState::mixed},
        {.name = "switch_disabled_off", .enabled = false},
        {.name = "switch_disabled_on", .state = on, .enabled = false},
        {.name = "switch_bg_on", .state = on, .background = Color{0.2, 0.6, 0.9, 1}},
        {.name = "switch_drag_mid", .dragTo = 27},
        {.name = "switch_drag_far_right", .dragTo = 500},
        {.name = "switch_extras_off_title", .extras = true},
        {.name = "switch_extras_on_title", .state = on, .extras = true},
        {.name = "switch_big_on", .state = on, .frame = big, .viewSize = big.size()},
        {.name = "switch_origin_on", .state = on, .frame = movedFrame, .viewSize = movedView},
        {.name = "switch_extras_origin_off_title",
         .frame = movedFrame,
         .viewSize = movedView,
         .extras = true},
    };
}

Case messageCase(std::string name, Size size) {
    return {std::move(name), size, Orientation::YUp, [size](Canvas& canvas) {
                RasterImageRenderer renderer;
                ZVMessageView(renderer, {0, 0, size.width, size.height}).drawRect(canvas);
            }};
}

Case buttonCase(std::string name, bool pressed, std::string_view title) {
    constexpr Rect frame{0, 0, 90, 28};
    return {std::move(name), frame.size(), Orientation::YDown,
            [pressed, title, frame](Canvas& canvas) {
                ZVMessageViewButton cell;
                cell.setHighlighted(pressed);
                cell.setTitle(title);
                cell.drawInteriorWithFrame(frame, nullptr, canvas);
            }};
}

Case noteCase(std::string name, Size size) {
    return {std::move(name), size, Orientation::YUp, [size](Canvas& canvas) {
                ZVCollectionNoteView note;
                note.setFrame({0, 0, size.width, size.height});
                note.drawRect(canvas);
            }};
}

} // namespace

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const SwitchCase& shown : switchCases())
        cases.push_back({shown.name, shown.viewSize, Orientation::YDown,
                         [shown](Canvas& canvas) { drawSwitch(shown, canvas); }});
    cases.push_back(messageCase("message_300x160", {300, 160}));
    cases.push_back(messageCase("message_120x60", {120, 60}));
    cases.push_back(buttonCase("button_normal", false, ""));
    cases.push_back(buttonCase("button_pressed", true, ""));
    cases.push_back(buttonCase("button_normal_title", false, "OK"));
    cases.push_back(buttonCase("button_pressed_title", true, "OK"));
    cases.push_back(noteCase("note_200x100", {200, 100}));
    cases.push_back(noteCase("note_64x40", {64, 40}));
    return cases;
}

} // namespace zarvil::gallery
