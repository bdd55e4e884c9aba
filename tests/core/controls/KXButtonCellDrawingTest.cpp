#include "Fakes.h"
#include "RecordingCanvas.h"
#include "controls/KXButtonCell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zarvil {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SwitchDrawing : public testing::Test {
protected:
    std::vector<std::string> drawn(const Rect& frame = {0, 0, 60, 26}) {
        canvas.log.clear();
        cell.drawWithFrame(frame, nullptr, canvas);
        return canvas.log;
    }
    /// The oval's line while a drag goes from one x to another.
    std::string knobWhileDragged(double from, double to) {
        cell.startTrackingAt({from, 13}, nullptr);
        cell.continueTracking({from, 13}, {to, 400}, nullptr);
        drawn();
        return knob();
    }
    std::string knob() {
        for (const std::string& line : canvas.lines("fill"))
            if (line.starts_with("fill oval"))
                return line;
        return {};
    }

    fake::VirtualTime time;
    KXButtonCell cell{std::nullopt, time};
    fake::RecordingCanvas canvas;
};

constexpr auto pill = "rounded(1, 1, 58, 24)(12, 12)";
constexpr auto glow = "shadow 0/1 blur 6 offset (0, 0)";

TEST_F(SwitchDrawing, drawsTheStepsInOrderWithTheirSinglePrecisionColors) {
    cell.setBackgroundColor(Color{0.25, 0.5, 0.75, 1});
    cell.setEnabled(false);
    EXPECT_THAT(drawn(),
                ElementsAre("layer", "save", std::string("clip ") + pill,
                            "fill rect(1, 1, 58, 24) 0.25,0.5,0.75/1",
                            "gradient rect(1, 1, 58, 24) angle 90 0:0/0.6000000238418579 "
                            "0.5:0/0.4000000059604645 1:0/0.30000001192092896",
                            glow, std::string("stroke ") + pill + " 0/1 width 0.5", "restore",
                            "save", std::string("clip ") + pill, glow,
                            "fill oval(2, 2, 22, 22) 1/1",
                            // Nothing takes the knob's shadow away before the wash.
                            "blend lighten", "fill rect(1, 1, 58, 24) 1/0.6600000262260437",
                            "restore", "end layer"));
}

TEST_F(SwitchDrawing, drawsNoImagesAndOthersOnlyWhenAsked) {
    cell.setOnTitle("Min");
    cell.setOffTitle("Sec");
    fake::ImageRenderer renderer;
    cell.setOnImage(renderer.render({8, 8}, [](Canvas&) {}));
    cell.setOffImage(renderer.render({9, 9}, [](Canvas&) {}));
    drawn();
    EXPECT_TRUE(canvas.lines("image").empty());
    EXPECT_EQ(cell.onImage()->size(), (Size{8, 8}));
    EXPECT_THAT(canvas.lines("fill"), ElementsAre("fill oval(2, 2, 22, 22) 1/1"));
    EXPECT_TRUE(canvas.lines("text").empty());
    EXPECT_TRUE(canvas.lines("blend").empty());
}

TEST_F(SwitchDrawing, putsTheKnobAtTheRightOnlyForOn) {
    const std::vector<std::pair<int, std::string>> cases{
        {0, "fill oval(2, 2, 22, 22) 1/1"},
        {1, "fill oval(36, 2, 22, 22) 1/1"},
        {-1, "fill oval(2, 2, 22, 22) 1/1"},
        {2, "fill oval(2, 2, 22, 22) 1/1"},
    };
    for (const auto& [state, expected] : cases) {
        cell.setState(state);
        drawn();
        EXPECT_EQ(knob(), expected) << state;
    }
}

TEST_F(SwitchDrawing, followsThePointerFromWhereTheKnobRestedAndStopsAtTheEnds) {
    struct Case {
        int state;
        double from;
        double to;
        const char* knob;
    };
    const std::vector<Case> cases{
        {0, 10, 27, "fill oval(19, 2, 22, 22) 1/1"}, {0, 10, 500, "fill oval(36, 2, 22, 22) 1/1"},
        {0, 10, -9, "fill oval(2, 2, 22, 22) 1/1"},  {1, 50, 45, "fill oval(31, 2, 22, 22) 1/1"},
        {1, 50, 90, "fill oval(36, 2, 22, 22) 1/1"}, {1, 50, -500, "fill oval(2, 2, 22, 22) 1/1"},
    };
    for (const Case& drag : cases) {
        cell.setState(drag.state);
        EXPECT_EQ(knobWhileDragged(drag.from, drag.to), drag.knob)
            << drag.from << " to " << drag.to;
    }
}

TEST_F(SwitchDrawing, restsWhereItWasUntilTheStateChanges) {
    knobWhileDragged(10, 40);
    cell.stopTracking({}, {10, 13}, nullptr, true);
    drawn();
    EXPECT_EQ(knob(), "fill oval(2, 2, 22, 22) 1/1");
}

TEST_F(SwitchDrawing, writesBothTitlesBesideTheKnobWithoutTheFramesY) {
    cell.setShowStateExtras(true);
    cell.setOnTitle("M");
    cell.setOffTitle("Seconds");
    cell.setState(1);
    drawn({7, 4, 60, 26});
    // The long title is cut to the 28 points that the knob leaves.
    EXPECT_THAT(canvas.lines("text"),
                ElementsAre("text M in (31, 5.799999713897705, 8, 14.40000057220459) "
                            "size 14.40000057220459 1/1",
                            "text Seconds in (69, 5.799999713897705, 28, 14.40000057220459) "
                            "size 14.40000057220459 1/1"));
    EXPECT_THAT(canvas.lines("clip"), testing::Each(HasSubstr("(8, 5, 58, 24)")));
    EXPECT_EQ(knob(), "fill oval(43, 6, 22, 22) 1/1");
}

TEST_F(SwitchDrawing, writesTitlesInTheirColorBeforeTheShadowComesBack) {
    cell.setShowStateExtras(true);
    cell.setOffTitle("Off");
    cell.setFontColor(Color{1, 0.5, 0, 1});
    const auto log = drawn();
    ASSERT_EQ(canvas.lines("text").size(), 1U);
    EXPECT_THAT(canvas.lines("text").front(), HasSubstr(" 1,0.5,0/1"));
    const auto at = std::ranges::find(log, canvas.lines("text").front());
    EXPECT_EQ(*std::next(at), glow);
}

TEST_F(SwitchDrawing, computesTinyFramesWithoutAGuard) {
    drawn({0, 0, 0, 0});
    EXPECT_THAT(canvas.lines("clip"), testing::Each("clip rounded(1, 1, -2, -2)(-1, -1)"));
    EXPECT_EQ(knob(), "fill oval(2, 2, -4, -4) 1/1");
    // Where on lies left of off, the drag's knob never leaves those two places.
    cell.startTrackingAt({0, 0}, nullptr);
    cell.continueTracking({}, {100, 0}, nullptr);
    drawn({0, 0, 10, 26});
    EXPECT_EQ(knob(), "fill oval(-14, 2, 22, 22) 1/1");
}

} // namespace

} // namespace zarvil
