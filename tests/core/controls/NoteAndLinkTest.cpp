#include "RecordingCanvas.h"
#include "controls/Hyperlink.h"
#include "controls/ZVCollectionNoteView.h"
#include "controls/ZVURLButton.h"
#include "interface/PointerTracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zarvil {

namespace {

using testing::ElementsAre;

TEST(CollectionNoteView, drawsOutlineGradientAndOutlineAllWithTheShadow) {
    ZVCollectionNoteView note;
    note.setFrame({40, 50, 200, 100});
    fake::RecordingCanvas canvas(false);
    note.drawRect(canvas);
    const std::string card = "rounded(3, 3, 194.5, 89.5)(8, 8)";
    const std::string outline =
        "stroke " + card + " 0.800000011920929,0.6000000238418579,0/1 width 1";
    EXPECT_THAT(canvas.log,
                ElementsAre("save", "shadow 0/0.5 blur 3 offset (0, 0)", outline,
                            "gradient " + card +
                                " angle -90 0:1,0.949999988079071,0.8399999737739563/1 "
                                "0.5:1,0.8999999761581421,0/1 "
                                "1:0.9800000190734863,0.8500000238418579,0.3199999928474426/1",
                            outline, "restore"));
}

TEST(CollectionNoteView, computesNegativeCardsWithoutAGuard) {
    fake::RecordingCanvas canvas(false);
    ZVCollectionNoteView().drawRect(canvas);
    EXPECT_THAT(canvas.lines("gradient").front(),
                testing::StartsWith("gradient rounded(3, 3, -5.5, -10.5)(8, 8)"));
}

struct LoggedCursor final : Cursor {
    void set(CursorShape shape) override {
        log += shape == CursorShape::PointingHand ? "hand " : "arrow ";
    }
    std::string log;
};

TEST(URLButton, showsTheHandOnlyInAKeyWindow) {
    LoggedCursor cursor;
    const auto button = ZVURLButton::initWithLayout(cursor, {30, 40, 100, 20});
    ASSERT_EQ(button->trackingAreas().size(), 1U);
    EXPECT_EQ(button->trackingAreas().front()->options, 33U);
    PointerTracker tracker(*button);
    tracker.update(Point{50, 10}, WindowActivity::NotKey);
    tracker.update(std::nullopt, WindowActivity::NotKey);
    EXPECT_EQ(cursor.log, "");
    tracker.update(Point{0, 0}, WindowActivity::Key);
    tracker.update(Point{99, 19}, WindowActivity::Key);
    tracker.update(Point{100, 19}, WindowActivity::Key);
    EXPECT_EQ(cursor.log, "hand arrow ");
    tracker.update(Point{50, 10}, WindowActivity::Key);
    tracker.update(Point{50, 10}, WindowActivity::NotKey);
    EXPECT_EQ(cursor.log, "hand arrow hand arrow ") << "a window that loses the keyboard";
}

TEST(URLButton, madeInCodeLeavesThePointerAlone) {
    LoggedCursor cursor;
    ZVURLButton button(cursor);
    button.setFrame({0, 0, 100, 20});
    PointerTracker tracker(button);
    tracker.update(Point{50, 10}, WindowActivity::Key);
    EXPECT_EQ(cursor.log, "");
}

TEST(PointerTracker, forgetsAnAreaThatIsRemovedUnderThePointer) {
    LoggedCursor cursor;
    const auto button = ZVURLButton::initWithLayout(cursor, {0, 0, 100, 20});
    PointerTracker tracker(*button);
    tracker.update(Point{50, 10}, WindowActivity::Key);
    button->removeTrackingArea(*button->trackingAreas().front());
    tracker.update(std::nullopt, WindowActivity::Key);
    EXPECT_EQ(cursor.log, "hand ");
}

TEST(Hyperlink, looksLikeALinkAndCarriesNone) {
    const AttributedString link = hyperlinkFromString("Größe", "https://example.org");
    EXPECT_EQ(link, hyperlinkFromString("Größe", ""));
    EXPECT_EQ(link.text(), "Größe");
    for (std::size_t index = 0; index < link.text().size(); ++index) {
        const auto look = link.attributesAt(index);
        ASSERT_TRUE(look);
        EXPECT_EQ(look->foregroundColor, color::blue);
        EXPECT_EQ(look->underlineStyle, UnderlineStyle::Single);
        EXPECT_EQ(look->alignment, TextAlignment::Centered);
        EXPECT_FALSE(look->link);
    }
    EXPECT_TRUE(hyperlinkFromString("", "https://example.org").empty());
}

TEST(Gradient, runsBetweenTheOutermostCorners) {
    const Rect rect{10, 20, 60, 30};
    const auto along = [&](double angle) { return gradientAxis(rect, angle); };
    EXPECT_DOUBLE_EQ(along(90).start.y, 20);
    EXPECT_DOUBLE_EQ(along(90).end.y, 50);
    EXPECT_DOUBLE_EQ(along(-90).start.y, 50);
    EXPECT_DOUBLE_EQ(along(-90).end.y, 20);
    EXPECT_DOUBLE_EQ(along(0).end.x, 70);
    const GradientAxis diagonal = along(45);
    EXPECT_NEAR(diagonal.end.x - diagonal.start.x, 45, 1e-9);
    EXPECT_NEAR(diagonal.end.y - diagonal.start.y, 45, 1e-9);
    EXPECT_EQ(Gradient::evenlySpaced({color::white}).stops.front().location, 0);
}

} // namespace

} // namespace zarvil
