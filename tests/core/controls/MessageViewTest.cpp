#include "RecordingCanvas.h"
#include "controls/ZVMessageView.h"
#include "controls/ZVMessageViewButton.h"
#include "interface/PointerTracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zarvil {

namespace {

using testing::ElementsAre;

constexpr auto darkLine = "stroke line(0, 120.5)(300, 120.5) 0/1 width 1";
constexpr auto lightLine = "stroke line(0, 119.5)(300, 119.5) 1/0.4000000059604645 width 1";

TEST(MessageView, rendersRimRingAndFaceWithTheFirstColorsAtTheTop) {
    fake::ImageRenderer renderer;
    const ZVMessageView view(renderer, {20, 30, 300, 160});
    EXPECT_THAT(renderer.latestLog,
                ElementsAre("fill rounded(0.5, 0.5, 300, 160)(6, 6) 0.10000000149011612/1",
                            "gradient rounded(1, 1, 298, 158)(5, 5) angle -90 "
                            "0:0.699999988079071/1 1:0.4000000059604645/1",
                            "gradient rounded(2, 2, 296, 156)(4, 4) angle -90 "
                            "0:0.5/1 1:0.20000000298023224/1"));
}

TEST(MessageView, drawsItsPictureAndTheGrooveAndRendersAnewOnlyForANewSize) {
    fake::ImageRenderer renderer;
    ZVMessageView view(renderer, {0, 0, 300, 160});
    fake::RecordingCanvas canvas(false);
    view.drawRect(canvas);
    view.drawRect(canvas);
    EXPECT_EQ(renderer.rendered, 1);
    view.setFrame({50, 60, 300, 160});
    view.drawRect(canvas);
    EXPECT_EQ(renderer.rendered, 1) << "the place does not matter";
    canvas.log.clear();
    view.setFrame({0, 0, 300, 161});
    EXPECT_EQ(renderer.rendered, 1) << "not before it is drawn";
    view.drawRect(canvas);
    EXPECT_EQ(renderer.rendered, 2);
    EXPECT_EQ(canvas.log.front(), "image (300, 161) in (0, 0, 300, 161) fraction 1");
    EXPECT_EQ(view.background()->size(), (Size{300, 161}));
}

TEST(MessageView, drawsTheGrooveAloneWithoutAPicture) {
    fake::ImageRenderer renderer;
    ZVMessageView view(renderer, {0, 0, 300, 160});
    view.setBackground(nullptr);
    fake::RecordingCanvas canvas(false);
    view.drawRect(canvas);
    EXPECT_THAT(canvas.log, ElementsAre(darkLine, lightLine));
    EXPECT_EQ(renderer.rendered, 1);
}

struct Countdown final : TrackingDelegate, TimerPausing, TimerResuming {
    void pauseTimer() override { log += "pause "; }
    void resumeTimer() override { log += "resume "; }
    std::string log;
};

struct OnlyPausing final : TrackingDelegate, TimerPausing {
    void pauseTimer() override { log += "pause "; }
    std::string log;
};

TEST(MessageView, pausesTheCountdownWhileThePointerIsOverIt) {
    fake::ImageRenderer renderer;
    ZVMessageView view(renderer, {20, 30, 300, 160});
    const auto countdown = std::make_shared<Countdown>();
    const auto pausing = std::make_shared<OnlyPausing>();
    view.setupTracking(countdown);
    view.setupTracking(pausing);
    view.setupTracking(std::make_shared<TrackingDelegate>());
    view.setupTracking(nullptr);
    EXPECT_EQ(view.trackingAreas().size(), 4U) << "the earlier areas stay";
    EXPECT_EQ(view.trackingAreas().front()->options, 129U);
    EXPECT_EQ(view.trackingAreas().front()->rect, (Rect{20, 30, 300, 160})) << "not its bounds";

    PointerTracker tracker(view);
    tracker.update(Point{40, 40}, WindowActivity::NotKey);
    tracker.update(Point{41, 40}, WindowActivity::Key);
    EXPECT_EQ(countdown->log, "pause ");
    tracker.update(std::nullopt, WindowActivity::NotKey);
    EXPECT_EQ(countdown->log, "pause resume ");
    EXPECT_EQ(pausing->log, "pause ");
    view.mouseEntered(nullptr);
    view.mouseExited(nullptr);
    EXPECT_EQ(countdown->log, "pause resume ");
}

TEST(MessageViewButton, clearsItsFrameAndShowsADarkFaceWhilePressed) {
    ZVMessageViewButton cell;
    cell.setTitle("OK");
    const auto drawn = [&] {
        fake::RecordingCanvas canvas;
        cell.drawInteriorWithFrame({10, 20, 90, 28}, nullptr, canvas);
        return canvas.log;
    };
    const auto normal = drawn();
    EXPECT_THAT(normal,
                ElementsAre("save", "blend clear", "fill rect(10, 20, 90, 28) 0/0", "restore",
                            "fill rounded(10.5, 20.5, 90, 28)(4, 4) 0.10000000149011612/1",
                            "gradient rounded(11, 21, 88, 26)(3, 3) angle 90 "
                            "0:0.699999988079071/1 1:0.4000000059604645/1",
                            "gradient rounded(12, 22, 86, 24)(2, 2) angle 90 "
                            "0:0.699999988079071/1 1:0.4000000059604645/1",
                            "text OK in (10, 25, 90, 18) size 12 1/1 centered"));
    cell.setHighlighted(true);
    auto pressed = normal;
    pressed[6] = "gradient rounded(12, 22, 86, 24)(2, 2) angle 90 "
                 "0:0.10000000149011612/1 1:0.30000001192092896/1";
    EXPECT_EQ(drawn(), pressed);
    cell.setHighlighted(false);
    EXPECT_EQ(drawn(), normal);
}

} // namespace

} // namespace zarvil
