#include "controls/Hyperlink.h"
#include "qt/widgets/LinkButtonWidget.h"
#include "qt/widgets/MessageButtonWidget.h"
#include "qt/widgets/MessagePanelWidget.h"
#include "qt/widgets/NoteCard.h"
#include "qt/widgets/Tabs.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace zarvil::qt {

namespace {

struct Target final : ActionTarget {
    void performAction(std::string_view action, Control*) override { actions.emplace_back(action); }
    std::vector<std::string> actions;
};

/// A window with one model to press.
class ControlWidgets : public testing::Test {
protected:
    ControlWidgets() {
        model.setTarget(&target);
        model.setAction("press:");
        window.resize(400, 260);
    }
    void show() {
        window.show();
        QApplication::setActiveWindow(&window);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    static void hover(QWidget& widget, QPointF position, QEvent::Type type) {
        QHoverEvent event(type, position, position, position);
        QApplication::sendEvent(&widget, &event);
    }

    Button model;
    Target target;
    QDialog window;
};

TEST_F(ControlWidgets, tabsAreMeasuredWhenTheirSizeIsAskedFor) {
    Tabs tabs(&window);
    tabs.setDocumentMode(true);
    for (const char* title : {"One", "Quite another"})
        tabs.addTab(new QWidget, title);
    const QTabBar& bar = *tabs.tabBar();
    EXPECT_EQ(bar.tabRect(0).width(), bar.tabRect(1).width()) << "no font was needed";
    show();
    EXPECT_GT(bar.tabRect(1).width(), bar.tabRect(0).width());
    EXPECT_GT(bar.tabRect(0).width(), bar.fontMetrics().horizontalAdvance("One"));
}

TEST_F(ControlWidgets, aLinkShowsItsTitleAndAHandWhileTheWindowIsActive) {
    LinkButtonWidget link(&window);
    link.resize(200, 24);
    model.setAttributedTitle(hyperlinkFromString("example.org", ""));
    link.setModel(model);
    EXPECT_EQ(link.text(), "example.org");
    hover(link, {10, 10}, QEvent::HoverEnter);
    EXPECT_NE(link.cursor().shape(), Qt::PointingHandCursor) << "not shown, not active";
    hover(link, {-1, -1}, QEvent::HoverLeave);
    show();
    hover(link, {10, 10}, QEvent::HoverEnter);
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor);
    hover(link, {-1, -1}, QEvent::HoverLeave);
    EXPECT_EQ(link.cursor().shape(), Qt::ArrowCursor);
    link.resize(300, 24);
    hover(link, {290, 10}, QEvent::HoverEnter);
    EXPECT_EQ(link.cursor().shape(), Qt::PointingHandCursor) << "over all of its new size";
}

TEST_F(ControlWidgets, aLinkIsPressedByMouseAndKeys) {
    LinkButtonWidget link(&window);
    link.resize(200, 24);
    model.setTitle("Pushover");
    link.setModel(model);
    show();
    link.setFocus();
    QTest::mouseClick(&link, Qt::LeftButton);
    QTest::keyClick(&link, Qt::Key_Space);
    QTest::keyClick(&link, Qt::Key_Return);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&link)->role(), QAccessible::Link);
    EXPECT_EQ(target.actions.size(), 3U);
    model.setEnabled(false);
    QTest::mouseClick(&link, Qt::LeftButton);
    EXPECT_EQ(target.actions.size(), 3U);
}

/// Whether a color stands in what a widget paints.
bool paints(QWidget& widget, const QColor& color) {
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                return true;
    return false;
}

TEST_F(ControlWidgets, aLinkIsBlueWhereBlueCanBeRead) {
    LinkButtonWidget link(&window);
    link.resize(200, 24);
    model.setAttributedTitle(hyperlinkFromString("example.org", ""));
    link.setModel(model);
    QPalette palette;
    palette.setColor(QPalette::Link, QColor(120, 180, 255));
    palette.setColor(QPalette::Window, Qt::white);
    link.setPalette(palette);
    EXPECT_TRUE(paints(link, QColor(Qt::blue)));
    palette.setColor(QPalette::Window, QColor(40, 40, 40));
    link.setPalette(palette);
    EXPECT_FALSE(paints(link, QColor(Qt::blue)));
    EXPECT_TRUE(paints(link, QColor(120, 180, 255)));
    palette.setColor(QPalette::Link, QColor(0, 0, 160));
    palette.setColor(QPalette::WindowText, QColor(250, 250, 240));
    link.setPalette(palette);
    EXPECT_TRUE(paints(link, QColor(250, 250, 240)));
}

TEST_F(ControlWidgets, aMessageButtonDarkensWhilePressedAndKeepsWhatIsBehindItsCorners) {
    window.setStyleSheet("QDialog { background: rgb(0, 200, 0) }");
    MessageButtonWidget button(&window);
    button.setAutoDefault(false);
    button.setGeometry(20, 20, 90, 28);
    show();
    button.clearFocus();
    const auto pixel = [&](int x, int y) { return window.grab().toImage().pixelColor(x, y); };
    const int released = pixel(30, 34).red();
    EXPECT_EQ(pixel(20, 20), QColor(0, 200, 0));
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_LT(pixel(30, 34).red(), released - 50);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(pixel(30, 34).red(), released);
}

TEST_F(ControlWidgets, aPanelAndItsButtonsAreReadableInHighContrast) {
    const QPalette before = QApplication::palette();
    MessagePanelWidget panel(&window);
    MessageButtonWidget button(&panel);
    button.setText("Remove");
    button.setAutoDefault(false);
    panel.setGeometry(0, 0, 300, 160);
    button.setGeometry(100, 100, 90, 28);
    show();
    EXPECT_EQ(panel.palette().color(QPalette::WindowText), QColor(Qt::white));
    QPalette contrast = before;
    for (const auto role : {QPalette::Window, QPalette::Button})
        contrast.setColor(role, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText})
        contrast.setColor(role, Qt::black);
    const auto textIs = [&](const QColor& color) {
        return QTest::qWaitFor(
            [&] { return panel.palette().color(QPalette::WindowText) == color; });
    };
    QApplication::setPalette(contrast);
    EXPECT_TRUE(textIs(Qt::black));
    const QImage image = panel.grab().toImage();
    EXPECT_EQ(image.pixelColor(20, 80), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(0, 80), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white)) << "as round as the window around it";
    EXPECT_GT(image.pixelColor(110, 105).lightness(), 200);
    QApplication::setPalette(before);
    EXPECT_TRUE(textIs(Qt::white));
}

struct Countdown final : TrackingDelegate, TimerPausing, TimerResuming {
    void pauseTimer() override { log += "pause "; }
    void resumeTimer() override { log += "resume "; }
    std::string log;
};

TEST_F(ControlWidgets, aPanelPausesItsCountdownUnderThePointer) {
    MessagePanelWidget panel(&window);
    panel.setGeometry(0, 0, 300, 160);
    show();
    const auto countdown = std::make_shared<Countdown>();
    panel.setupTracking(countdown);
    hover(panel, {10, 10}, QEvent::HoverEnter);
    hover(panel, {-1, -1}, QEvent::HoverLeave);
    EXPECT_EQ(countdown->log, "pause resume ");
}

// What a card looks like, the pictures of the gallery hold.
TEST(NoteCard, standsWhereItIsPaintedAtItsScale) {
    QImage image(600, 480, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const QRectF& bounds : {QRectF(50, 60, 200, 100), QRectF()})
        paintNoteCard(painter, bounds, 2);
    EXPECT_NE(image.pixelColor(300, 136), QColor(Qt::white)) << "7.5 points from the top";
    for (const QPoint& outside : {QPoint(300, 124), QPoint(96, 220)})
        EXPECT_EQ(image.pixelColor(outside), QColor(Qt::white));
}

} // namespace

} // namespace zarvil::qt
