#include "qt/widgets/SwitchWidget.h"

#include "Fakes.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace zarvil::qt {

namespace {

struct Target final : ActionTarget {
    void performAction(std::string_view, Control* sender) override {
        states.push_back(static_cast<Button*>(sender)->state());
    }
    std::vector<int> states;
};

class SwitchWidgetTest : public testing::Test {
protected:
    SwitchWidgetTest() {
        model.setTarget(&target);
        model.setAction("flip:");
        widget.move(40, 30);
        widget.resize(widget.sizeHint());
        widget.setModel(model);
        window.resize(200, 100);
        window.show();
        QApplication::setActiveWindow(&window);
        widget.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// A point of the cell as one of the widget.
    static QPoint at(int x, int y) {
        return {x + SwitchWidget::ringMargin, y + SwitchWidget::ringMargin};
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        time.advance(1);
        QTest::mouseMove(&widget, to);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    }
    QAccessibleInterface* accessible() { return QAccessible::queryAccessibleInterface(&widget); }
    QImage picture() { return window.grab().toImage(); }

    fake::VirtualTime time;
    Button model{ButtonKind::Toggle, std::make_unique<KXButtonCell>(std::nullopt, time)};
    Target target;
    QWidget window;
    SwitchWidget widget{&window};
};

TEST_F(SwitchWidgetTest, tellsTheModelWhereItsCellStands) {
    EXPECT_EQ(model.frame(), (Rect{43, 33, 60, 26}));
    widget.move(0, 0);
    widget.resize(106, 46);
    EXPECT_EQ(model.frame(), (Rect{3, 3, 100, 40}));
}

TEST_F(SwitchWidgetTest, followsClicksAndDrags) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at(10, 13));
    EXPECT_EQ(target.states, std::vector{1});
    drag(at(50, 13), at(-200, 13));
    EXPECT_EQ(target.states, (std::vector{1, 0}));
    drag(at(10, 13), at(45, 90));
    EXPECT_EQ(target.states, (std::vector{1, 0, 1}));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at(10, 13));
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, at(10, 13));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, at(10, 13));
    EXPECT_EQ(target.states, (std::vector{1, 0, 1, 0, 1})) << "two clicks";
    QTest::mouseClick(&widget, Qt::RightButton, {}, at(10, 13));
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(1, 1));
    EXPECT_EQ(target.states.size(), 5U) << "neither another button nor the margin";
}

TEST_F(SwitchWidgetTest, followsTheKeys) {
    struct Case {
        Qt::Key key;
        int before;
        std::vector<int> sent;
    };
    for (const Case& press :
         {Case{Qt::Key_Space, 0, {1}}, Case{Qt::Key_Space, 1, {0}}, Case{Qt::Key_Left, 1, {0}},
          Case{Qt::Key_Left, 0, {}}, Case{Qt::Key_Right, 0, {1}}, Case{Qt::Key_Right, 1, {}},
          Case{Qt::Key_Left, -1, {0}}, Case{Qt::Key_Right, -1, {1}}, Case{Qt::Key_A, 0, {}}})
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            widget.setLayoutDirection(direction);
            model.setState(press.before);
            target.states.clear();
            QTest::keyClick(&widget, press.key);
            EXPECT_EQ(target.states, press.sent) << press.key << " " << press.before;
        }
}

TEST_F(SwitchWidgetTest, looksTheSameFromRightToLeft) {
    model.setState(buttonState::on);
    const QImage before = widget.grab().toImage();
    widget.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(widget.grab().toImage(), before);
}

TEST_F(SwitchWidgetTest, forgetsAPressWhenTheModelIsDisabledMeanwhile) {
    QTest::mousePress(&widget, Qt::LeftButton, {}, at(10, 13));
    time.advance(1);
    QTest::mouseMove(&widget, at(45, 13));
    model.setEnabled(false);
    EXPECT_FALSE(widget.isEnabled());
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, at(45, 13));
    QTest::keyClick(&widget, Qt::Key_Space);
    QTest::keyClick(&widget, Qt::Key_Right);
    EXPECT_EQ(model.state(), buttonState::off);
    EXPECT_TRUE(target.states.empty());
    model.setEnabled(true);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at(10, 13));
    EXPECT_EQ(target.states, std::vector{1});
}

TEST_F(SwitchWidgetTest, showsTheFocusAndAnOutlineInHighContrast) {
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::red);
    palette.setColor(QPalette::Window, QColor(60, 60, 60));
    palette.setColor(QPalette::WindowText, QColor(200, 200, 200));
    window.setPalette(palette);
    const QPoint ring = widget.pos() + QPoint(33, 2);
    const QPoint outline = widget.pos() + QPoint(33, 3);
    EXPECT_EQ(picture().pixelColor(ring), QColor(Qt::red));
    widget.clearFocus();
    EXPECT_EQ(picture().pixelColor(ring), QColor(60, 60, 60));
    EXPECT_NE(picture().pixelColor(outline), QColor(Qt::white));
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    window.setPalette(palette);
    EXPECT_EQ(picture().pixelColor(outline), QColor(Qt::white));
}

TEST_F(SwitchWidgetTest, tellsAssistiveTechnologiesWhatItIs) {
    QLabel label(&window);
    label.setText("&Protection");
    label.setBuddy(&widget);
    EXPECT_EQ(accessible()->role(), QAccessible::CheckBox);
    EXPECT_EQ(accessible()->text(QAccessible::Name), "Protection");
    widget.setAccessibleName("Unit");
    EXPECT_EQ(accessible()->text(QAccessible::Name), "Unit");
    EXPECT_FALSE(accessible()->state().checked);
    accessible()->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(target.states, std::vector{1});
    EXPECT_TRUE(accessible()->state().checked);
    model.setState(buttonState::mixed);
    EXPECT_TRUE(accessible()->state().checkStateMixed);
    model.setEnabled(false);
    EXPECT_TRUE(accessible()->state().disabled);

    auto* cell = model.cellAs<KXButtonCell>();
    cell->setOnTitle("Min");
    cell->setOffTitle("Sec");
    EXPECT_EQ(accessible()->text(QAccessible::Value), "");
    cell->setShowStateExtras(true);
    EXPECT_EQ(accessible()->text(QAccessible::Value), "Sec");
}

TEST(SwitchWidget, drawsInNoRoomAtAll) {
    fake::VirtualTime time;
    Button model{ButtonKind::Toggle, std::make_unique<KXButtonCell>(std::nullopt, time)};
    SwitchWidget widget;
    widget.setModel(model);
    for (const QSize size : {QSize(1, 1), QSize(6, 6), QSize(8, 7), QSize(9, 30), QSize(200, 9)}) {
        widget.resize(size);
        EXPECT_EQ(widget.grab().toImage().size(), size);
    }
}

} // namespace

} // namespace zarvil::qt
