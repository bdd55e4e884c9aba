#include "qt/devices/DeviceListView.h"
#include "PaneHarness.h"
#include "qt/devices/DeviceItemDelegate.h"
#include "qt/devices/DeviceListModel.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>

#include <algorithm>

namespace zarvil::qt {
namespace {

Dictionary device(std::string_view name, std::string_view serial = "S") {
    return {{"DeviceName", name}, {"DeviceVendor", "Maker"}, {"DeviceSerial", serial}};
}

/// The two lists of one pane side by side, off-screen.
class DeviceListViews : public PaneHarness {
protected:
    DeviceListViews() {
        loadWithAgent();
        connected.setModel(pane.connectedDevices);
        saved.setModel(pane.selectedDevices);
        for (DeviceListView* view : {&connected, &saved}) {
            view->resize(320, 400);
            view->show();
        }
        QApplication::processEvents();
    }

    void plug(int count) {
        for (int number = 0; number < count; ++number)
            agentSends({message::deviceConnected,
                        device("N" + std::to_string(number), std::to_string(number))});
        QApplication::processEvents();
    }
    static QStringList names(const DeviceListView& view) {
        QStringList names;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            names += view.model()->index(row, 0).data().toString();
        return names;
    }
    static QPoint checkBox(const DeviceListView& view, int row) {
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.widget = &view;
        option.rect = view.visualRect(view.model()->index(row, 0));
        return DeviceItemDelegate::checkArea(option).center();
    }
    static void click(const DeviceListView& view, QPoint place) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    }
    static Qt::CheckState checkState(const DeviceListView& view, int row) {
        return view.model()->index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>();
    }

    DeviceListView connected;
    DeviceListView saved;
};

TEST_F(DeviceListViews, aClickOnTheBoxMovesTheDeviceThereAndBack) {
    plug(3);
    click(connected, checkBox(connected, 2));
    EXPECT_EQ(names(connected), (QStringList{"N0", "N1"}));
    EXPECT_EQ(names(saved), QStringList{"N2"});
    EXPECT_EQ(checkState(saved, 0), Qt::Checked);
    QApplication::processEvents();
    click(saved, checkBox(saved, 0));
    EXPECT_EQ(names(connected), (QStringList{"N0", "N1", "N2"}));
    EXPECT_EQ(checkState(connected, 2), Qt::Unchecked);
    EXPECT_EQ(takeSentNames(), (std::vector<std::string>{"ZVAddedSaveItem", "ZVSaveItemRemoved"}));
}

TEST_F(DeviceListViews, onlyAPressAndReleaseOnTheSameBoxToggles) {
    plug(2);
    const QPoint first = checkBox(connected, 0);
    const QPoint second = checkBox(connected, 1);
    const QPoint name = first + QPoint(80, 0);
    click(connected, name);
    for (const auto& [press, release] :
         {std::pair(first, second), std::pair(first, name), std::pair(name, first)}) {
        QTest::mousePress(connected.viewport(), Qt::LeftButton, {}, press);
        QTest::mouseRelease(connected.viewport(), Qt::LeftButton, {}, release);
    }
    QTest::mouseClick(connected.viewport(), Qt::RightButton, {}, first);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{});
}

TEST_F(DeviceListViews, keysMoveThroughTheListAndSpaceToggles) {
    plug(30);
    connected.setFocus();
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&connected, key);
        return connected.currentIndex().data().toString();
    };
    EXPECT_EQ(press(Qt::Key_End), "N29");
    EXPECT_EQ(connected.verticalScrollBar()->value(), connected.verticalScrollBar()->maximum());
    EXPECT_EQ(press(Qt::Key_Up), "N28");
    EXPECT_EQ(press(Qt::Key_Home), "N0");
    EXPECT_EQ(press(Qt::Key_Down), "N1");
    EXPECT_EQ(press(Qt::Key_Space), "N2") << "the current row goes on to the neighbour";
    EXPECT_EQ(names(saved), QStringList{"N1"});
    press(Qt::Key_End);
    EXPECT_EQ(press(Qt::Key_Space), "N28");
    EXPECT_EQ(names(saved), (QStringList{"N1", "N29"}));
}

TEST_F(DeviceListViews, theKeyboardGoesWithTheLastDeviceThatIsTickedAndNotUnasked) {
    QWidget page;
    connected.setParent(&page);
    saved.setParent(&page);
    saved.setObjectName("saved");
    connected.setPassesFocusTo("saved");
    page.show();
    connected.show();
    saved.show();
    page.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    connected.setFocus();
    plug(2);
    EXPECT_EQ(connected.currentIndex().data(), "N0") << "there is always a row to see it on";
    QTest::keyClick(&connected, Qt::Key_Space);
    EXPECT_TRUE(connected.hasFocus());
    agentSends({message::deviceDisconnected, device("N1", "1")});
    EXPECT_TRUE(connected.hasFocus()) << "the next key must not meet another list";
    plug(1);
    agentSends({message::deviceConnected, device("N9", "9")});
    QTest::keyClick(&connected, Qt::Key_Space);
    EXPECT_TRUE(saved.hasFocus());
    EXPECT_TRUE(saved.currentIndex().isValid());
    connected.setParent(nullptr);
    saved.setParent(nullptr);
}

TEST_F(DeviceListViews, aTickFromElsewhereIsShownAtOnce) {
    plug(2);
    EXPECT_EQ(checkState(connected, 1), Qt::Unchecked);
    const auto item = pane.connectedDevices.itemAtIndexAs<ZVCollectionItem>(1);
    item->setState(1);
    bool asked = false;
    QObject::connect(connected.model(), &QAbstractItemModel::rowsAboutToBeRemoved, &connected, [&] {
        asked = true;
        EXPECT_EQ(names(connected), (QStringList{"N0", "N1"})) << "the list is ahead of its rows";
        EXPECT_EQ(checkState(connected, 0), Qt::Unchecked) << "not that of N1";
    });
    agentSends({message::deviceDisconnected, device("N0", "0")});
    EXPECT_TRUE(asked);
    item->setState(0);
    const QSignalSpy changes(connected.model(), &QAbstractItemModel::dataChanged);
    item->setState(1);
    EXPECT_EQ(checkState(connected, 0), Qt::Checked);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 0) << "its row after the first one went";
}

TEST_F(DeviceListViews, theLastOfTenThousandDevicesIsOneKeyAway) {
    Array devices(10'000, Value(device("one of many")));
    devices.emplace_back(device("the last"));
    agentSends({message::allConnectedDevices, Dictionary{{"devices", devices}}});
    QApplication::processEvents();
    QTest::keyClick(&connected, Qt::Key_End);
    EXPECT_EQ(connected.indexAt(connected.viewport()->rect().center()).data(), "one of many");
    EXPECT_EQ(connected.currentIndex().data(), "the last");
    EXPECT_TRUE(
        connected.viewport()->rect().intersects(connected.visualRect(connected.currentIndex())));
    time.advance(5);
    EXPECT_EQ(connected.model()->rowCount(), 0);
}

TEST_F(DeviceListViews, anAssistiveProgramReadsAndTicksRowsThatStayThemselves) {
    plug(4);
    connected.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&connected));
    auto* list = QAccessible::queryAccessibleInterface(&connected);
    ASSERT_EQ(list->childCount(), 4);
    std::vector<QAccessibleInterface*> rows;
    for (int row = 0; row < 4; ++row)
        rows.push_back(list->child(row));
    EXPECT_EQ(rows[3]->text(QAccessible::Name), "N3, Maker, 3");
    EXPECT_EQ(list->childAt(rows[1]->rect().center().x(), rows[1]->rect().center().y()), rows[1]);
    rows[1]->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(list->focusChild(), rows[1]);
    EXPECT_TRUE(rows[1]->state().focused && rows[1]->state().selected);
    EXPECT_EQ(rows[1]->role(), QAccessible::ListItem);
    rows[0]->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(names(saved), QStringList{"N0"});
    EXPECT_EQ(list->childCount(), 3);
    EXPECT_EQ(list->indexOfChild(rows[3]), 2);
    EXPECT_EQ(list->child(2), rows[3]) << "the same row, one place up";
    auto* watched = QAccessible::queryAccessibleInterface(&saved)->child(0);
    EXPECT_TRUE(watched->state().checked);
    time.advance(5);
    EXPECT_EQ(list->childCount(), 0);
}

TEST_F(DeviceListViews, whatLooksLikeMarkupIsShownAsItIs) {
    agentSends({message::deviceConnected, device("<b>bold</b>", "a & b")});
    const QModelIndex row = connected.model()->index(0, 0);
    EXPECT_EQ(row.data().toString(), "<b>bold</b>");
    const QString tip = row.data(Qt::ToolTipRole).toString();
    EXPECT_EQ(QTextDocumentFragment::fromHtml(tip).toPlainText(), "<b>bold</b>\nMaker\na & b");
    EXPECT_FALSE(connected.grab().isNull());
}

} // namespace
} // namespace zarvil::qt
