#include "ControlCases.h"
#include "LayoutHarness.h"
#include "pane/Help.h"
#include "qt/binding/LockWidget.h"
#include "qt/binding/Spinner.h"
#include "qt/devices/DeviceListView.h"
#include "qt/pane/HelpWindow.h"
#include "qt/widgets/Contrast.h"
#include "qt/widgets/MarginScrollBar.h"
#include "qt/widgets/Theme.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTextBrowser>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace zarvil::qt {
namespace {

constexpr int generalPage = 1;
constexpr int alertsPage = 2;
constexpr int scriptsPage = 3;

TEST_F(Layout, hasAWidgetForEveryOutletAndNamesOnlyKnownOnes) {
    EXPECT_EQ(faults, Faults{});
    EXPECT_EQ(missingOutlets(pane, view), Faults{});
}

/// What a user sees of a control.
std::string seen(const QWidget& top, std::string_view name) {
    const auto* widget = top.findChild<QWidget*>(QString::fromUtf8(name));
    if (!widget)
        return "nothing";
    QString found = widget->isHidden() ? "hidden" : "shown";
    found += widget->isEnabledTo(&top) ? ", enabled" : ", disabled";
    for (const char* property : {"text", "toolTip", "whatsThis", "checked", "opacity"})
        found += ' ' + widget->property(property).toString();
    if (const auto* list = qobject_cast<const QAbstractItemView*>(widget))
        found += ' ' + QString::number(list->model()->rowCount());
    return found.toStdString();
}

TEST_F(Layout, aPageThatIsOpenedLateShowsWhatAnEarlyOneDoes) {
    loadWithAgent({{"UsePushover", true}, {"ShutdownDelay", 90}, {"EmailAddress", "a@b.de"}});
    agentSends(Message(message::deviceConnected, Dictionary{{"DeviceName", "UPS"}}));
    PaneView late;
    Subscriptions kept;
    bind(late, kept);
    EXPECT_EQ(late.findChild<QWidget*>("connectedDevices"), nullptr);
    late.show();
    auto& tabs = *late.findChild<QTabWidget*>("tabView");
    for (int page = tabs.count() - 1; page >= 0; --page) {
        tabs.setCurrentIndex(page);
        const QWidget* below = late.findChild<QWidget*>("authView");
        for (QWidget* before = below->previousInFocusChain(); page == generalPage;
             before = before->previousInFocusChain())
            if (before->focusPolicy() & Qt::TabFocus) {
                EXPECT_TRUE(tabs.currentWidget()->isAncestorOf(before));
                break;
            }
    }
    late.makeUninstallPanel();
    visitOutlets(pane, [&](std::string_view name, View&) {
        EXPECT_EQ(seen(late, name), seen(view, name)) << name;
    });
    EXPECT_EQ(faults, Faults{});
}

TEST_F(Layout, anAssistiveProgramFindsTheControlsOfPagesThatWereNeverShown) {
    const PaneView unseen;
    EXPECT_EQ(unseen.findChild<QWidget*>("email"), nullptr);
    QAccessible::setActive(true);
    for (const char* name : {"email", "uninstallButton", "CancelUninstall"})
        EXPECT_NE(unseen.findChild<QWidget*>(name), nullptr) << name;
    QAccessible::setActive(false);
}

TEST_F(Layout, tellsOfWidgetsThatAreMissingUnknownOrOfTheWrongKind) {
    QWidget broken;
    auto* misnamed = new QLabel(&broken);
    misnamed->setObjectName("showIcon");
    auto* unknown = new QPushButton(&broken);
    unknown->setObjectName("nobodyKnowsThis");
    unknown->setProperty("action", "nobody:");
    Subscriptions none;
    Faults found = bindOutlets(pane, broken, none);
    std::ranges::copy(missingOutlets(pane, broken), std::back_inserter(found));
    for (const char* fault :
         {"no widget for the outlet email", "the widget of showIcon is of the wrong kind",
          "no outlet for the widget nobodyKnowsThis", "no action nobody:"})
        EXPECT_EQ(std::ranges::count(found, fault), 1) << fault;
}

TEST_F(Layout, startsAtTheLaunchButtonOfAnAbsentAgentUnlessTheUserHasMoved) {
    load();
    QWidget window;
    view.setParent(&window);
    window.show();
    view.show();
    auto& bar = *widget<QTabWidget>("tabView").tabBar();
    auto& launch = widget<QPushButton>("launchButton");
    EXPECT_EQ(window.focusWidget(), &bar);
    view.setParent(nullptr);
    focus(bar, 0);
    pane.appDidNotAnswer();
    EXPECT_TRUE(launch.hasFocus());
    focus(bar, 0);
    QTest::keyClick(&bar, Qt::Key_Return);
    EXPECT_EQ(workspace.launched.size(), 1U) << "the default button";
    auto& address = widget<QLineEdit>("email");
    pane.appDidNotAnswer();
    focus(address, alertsPage);
    QTest::keyClick(&address, Qt::Key_Return);
    EXPECT_EQ(workspace.launched.size(), 1U);
    agentSends(message::pingAnswer);
    EXPECT_FALSE(launch.isDefault());
    focus(bar, 0);
    pane.appDidNotAnswer();
    EXPECT_TRUE(bar.hasFocus());
}

TEST_F(Layout, tabWalksEachPageAsItIsRead) {
    files.folders = {"/home/user/Library/Zarvil Scripts"};
    files.files["/home/user/Library/Zarvil Scripts/One.zvscript"] = "echo";
    files.files["/home/user/Library/Zarvil Scripts/Two.zvscript"] = "echo";
    loadWithAgent({{"UsePushover", true},
                   {"UseScripts", true},
                   {"UseEmailNotifi", true},
                   {"ShowStatusIcon", true},
                   {"ShutdownDelay", 30}});
    agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
    view.resize(view.sizeHint());
    auto& tabs = widget<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count(); ++page) {
        focus(*tabs.tabBar(), page);
        QStringList missed;
        for (const auto* one : tabs.currentWidget()->findChildren<QWidget*>())
            if (one->isVisible() && one->isEnabled() && (one->focusPolicy() & Qt::TabFocus) &&
                !one->focusProxy())
                missed += one->objectName();
        const auto& area = dynamic_cast<const QScrollArea&>(*tabs.currentWidget());
        QRect last;
        QTest::keyClick(tabs.tabBar(), Qt::Key_Tab);
        for (QWidget* now = view.focusWidget(); tabs.currentWidget()->isAncestorOf(now);
             now = view.focusWidget()) {
            const QRect place(now->mapTo(area.widget(), QPoint()), now->size());
            const bool isBeside = place.top() <= last.bottom() && last.top() <= place.bottom();
            EXPECT_TRUE(isBeside ? place.left() > last.left() : place.top() > last.top())
                << now->objectName().toStdString() << " on page " << page;
            ASSERT_TRUE(missed.removeOne(now->objectName())) << now->objectName().toStdString();
            last = place;
            QTest::keyClick(now, Qt::Key_Tab);
        }
        EXPECT_EQ(missed.join(' ').toStdString(), "") << page;
        EXPECT_EQ(view.focusWidget(), &widget<QWidget>("authView"));
    }
}

TEST_F(Layout, disabledTextStandsOutOnEveryGroundOfAnyPalette) {
    const QPalette before = QApplication::palette();
    for (const auto& [window, base, faint] : {std::tuple(0xffefefef, 0xffffffff, 0xffbebebe),
                                              std::tuple(0xff323232, 0xff242424, 0xff505050),
                                              std::tuple(0xff000000, 0xff000000, 0xff202020)}) {
        QPalette palette{QColor(window)};
        palette.setColor(QPalette::Base, QColor(base));
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(QPalette::Disabled, role, QColor(faint));
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        auto& box = widget<QCheckBox>("forceQuit");
        const auto color = [&box](QPalette::ColorRole role) {
            return box.palette().color(QPalette::Disabled, role);
        };
        EXPECT_GE(contrastRatio(color(QPalette::WindowText), theme::cardGround(box.palette())), 3);
        EXPECT_GE(contrastRatio(color(QPalette::Text), color(QPalette::Base)), 3);
        const QColor placeholder = color(QPalette::PlaceholderText);
        EXPECT_GE(
            contrastRatio(theme::mixed(color(QPalette::Base), placeholder, placeholder.alphaF()),
                          color(QPalette::Base)),
            3);
        EXPECT_GE(contrastRatio(color(QPalette::ButtonText), color(QPalette::Button)), 3);
    }
    QApplication::setPalette(before);
}

TEST_F(Layout, explainsEveryControlAndCanReachItByKeyboard) {
    visitOutlets(pane, [&](std::string_view name, View& model) {
        auto* shown = view.findChild<QWidget*>(QString::fromUtf8(name));
        const auto* control = dynamic_cast<Control*>(&model);
        const bool operable =
            control && !qobject_cast<QLabel*>(shown) && !shown->property("readOnly").toBool();
        if (!operable)
            return;
        EXPECT_FALSE(shown->toolTip().isEmpty()) << name;
        EXPECT_TRUE(shown->focusPolicy() & Qt::TabFocus) << name;
    });
}

TEST_F(Layout, everyControlSendsWhatTheTableSays) {
    load();
    view.show();
    for (const ControlCase& c : controlCases) {
        for (const Message& message : messagesBeforeACase())
            agentSends(message);
        QApplication::processEvents();
        takeSent();
        auto& control = widget<QWidget>(std::string(c.outlet).c_str());
        auto& tabs = widget<QTabWidget>("tabView");
        for (int page = 0; page < tabs.count(); ++page)
            if (tabs.widget(page)->isAncestorOf(&control))
                tabs.setCurrentIndex(page);
        if (auto* field = qobject_cast<QLineEdit*>(&control)) {
            field->selectAll();
            QTest::keyClicks(field, QString::fromUtf8(c.typed));
            QTest::keyClick(field, Qt::Key_Return);
        } else if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
            button->click();
        } else if (auto* list = qobject_cast<DeviceListView*>(&control)) {
            QTest::keyClick(list, Qt::Key_Home);
            QTest::keyClick(list, Qt::Key_Space);
        } else {
            QTest::mouseClick(&control, Qt::LeftButton);
        }
        EXPECT_EQ(described(takeSent()), c.sent) << c.outlet;
    }
}

TEST_F(Layout, helpTellsOfTheTabThatIsShownAndOfControlsThatExist) {
    for (const auto& [outlet, text] : helpOfControls(platform.strings))
        EXPECT_TRUE(view.findChild<QWidget*>(QString::fromUtf8(outlet))) << outlet;
    HelpWindow::offer(view, platform.strings);
    focus(widget<QTabWidget>("tabView"), scriptsPage);
    QTest::keyClick(&view, Qt::Key_F1);
    auto& help = widget<HelpWindow>("HelpWindow");
    EXPECT_TRUE(help.isVisible());
    EXPECT_TRUE(
        help.findChild<QTextBrowser*>()->toPlainText().contains("~/Library/Zarvil Scripts"));
    widget<QTabWidget>("tabView").setCurrentIndex(alertsPage);
    EXPECT_EQ(help.windowTitle(), "Help: Alerts");
    help.close();
    widget<QAbstractButton>("HelpButton").click();
    EXPECT_TRUE(help.isVisible());
}

TEST_F(Layout, aFieldSendsOnReturnAndOnLeavingAnEditButNeverTwice) {
    loadWithAgent();
    auto& delay = widget<QLineEdit>("shutdownDelayText");
    focus(delay, generalPage);
    delay.selectAll();
    QTest::keyClicks(&delay, "45");
    EXPECT_TRUE(takeSent().empty());
    QTest::keyClick(&delay, Qt::Key_Return);
    EXPECT_EQ(takeSent(), std::vector{settingChange("ShutdownDelay", 45)});
    widget<QCheckBox>("forceQuit").setFocus();
    EXPECT_TRUE(takeSent().empty());
    focus(delay, generalPage);
    QTest::keyClicks(&delay, "0");
    widget<QCheckBox>("forceQuit").setFocus();
    EXPECT_EQ(takeSent(), std::vector{settingChange("ShutdownDelay", 450)});

    focus(delay, generalPage);
    delay.selectAll();
    QTest::keyClicks(&delay, "abc");
    QTest::keyClick(&delay, Qt::Key_Return);
    EXPECT_EQ(delay.text(), "abc");
    widget<QCheckBox>("forceQuit").setFocus();
    EXPECT_EQ(delay.text(), "450");
    EXPECT_TRUE(widget<QLabel>("DelayFault").isVisible());
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(Layout, leavingAnUnfinishedScriptTitleCreatesNothing) {
    loadWithAgent({{"UseScripts", true}});
    files.folders = {"/home/user/Library/Zarvil Scripts"};
    auto& title = widget<QLineEdit>("scriptsTitle");
    focus(title, scriptsPage);
    QTest::keyClicks(&title, "half");
    widget<QCheckBox>("useScriptsButton").setFocus();
    EXPECT_TRUE(files.files.empty());
    title.setFocus();
    QTest::keyClick(&title, Qt::Key_Return);
    EXPECT_EQ(files.files.count("/home/user/Library/Zarvil Scripts/half.zvscript"), 1U);
}

TEST_F(Layout, anAnimatedChangeGlidesAndAnImmediateOneDoesNot) {
    loadWithAgent({{"UsePushover", true}});
    auto& box = widget<QWidget>("pushBox");
    focus(widget<QLineEdit>("pushUserName"), alertsPage);
    const auto opacity = [&box] {
        const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(box.graphicsEffect());
        return effect && effect->isEnabled() ? effect->opacity() : 1.0;
    };
    QApplication::setEffectEnabled(Qt::UI_General, false);
    pane.pushBox.setAlphaValue(alpha::dimmed, Transition::Animated);
    EXPECT_EQ(opacity(), alpha::dimmed);
    pane.pushBox.setAlphaValue(alpha::active);
    QApplication::setEffectEnabled(Qt::UI_General);
    pane.pushBox.setAlphaValue(alpha::dimmed, Transition::Animated);
    EXPECT_GT(opacity(), 0.9);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opacity() == alpha::dimmed; }));
    pane.pushBox.setAlphaValue(alpha::active);
    EXPECT_EQ(opacity(), 1);
}

TEST_F(Layout, theVerdictTheSpinnerAndTheLockShowTheirModels) {
    loadWithAgent({{"UsePushover", true}, {"PushUserId", "u"}});
    focus(widget<QLineEdit>("pushUserName"), alertsPage);
    pane.pushIndicator.startAnimation();
    EXPECT_TRUE(widget<Spinner>("pushIndicator").isAnimating());
    TextAttributes red;
    red.foregroundColor = Color{1, 0.1, 0.1};
    red.alignment = TextAlignment::Centered;
    pane.pushValidationStatus.setAttributedStringValue({"Unknow error!", red});
    pane.pushValidationStatus.setHidden(false);
    auto& verdict = widget<QLabel>("pushValidationStatus");
    EXPECT_TRUE(verdict.isVisible());
    EXPECT_EQ(verdict.text(), "Unknow error!");
    EXPECT_TRUE(verdict.alignment() & Qt::AlignHCenter);
    EXPECT_EQ(verdict.palette().color(verdict.foregroundRole()), QColor::fromRgbF(1, 0.1F, 0.1F));
    authorization.questions.at(0).reply({false, "polkit is not there."});
    auto& lock = widget<LockWidget>("authView");
    EXPECT_EQ(lock.reason(), "polkit is not there.");
    EXPECT_TRUE(QTest::qWaitFor([&lock] { return lock.accessibleName().contains(": locked"); }));
}

TEST_F(Layout, aLongListScrollsBesideItsColumn) {
    loadWithAgent();
    for (int number = 0; number < 20; ++number)
        agentSends(Message(message::deviceConnected,
                           Dictionary{{"DeviceName", "UPS " + std::to_string(number)},
                                      {"DeviceVendor", "Maker"},
                                      {"DeviceSerial", "1"}}));
    view.resize(680, 640);
    focus(*widget<QTabWidget>("tabView").tabBar(), 0);
    const auto& list = widget<QAbstractScrollArea>("connectedDevices");
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        view.setLayoutDirection(direction);
        const auto bars = view.findChildren<MarginScrollBar*>();
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return std::ranges::any_of(bars, &QWidget::isVisible); }));
        auto& bar = **std::ranges::find_if(bars, &QWidget::isVisible);
        EXPECT_EQ(list.viewport()->width(), list.width());
        EXPECT_FALSE(bar.geometry().intersects(
            QRect(list.mapTo(bar.parentWidget(), QPoint()), list.size())));
        EXPECT_TRUE(bar.parentWidget()->rect().contains(bar.geometry()));
        bar.setValue(bar.maximum());
        EXPECT_GT(bar.maximum(), 0);
        EXPECT_EQ(list.verticalScrollBar()->value(), bar.maximum());
    }
}

TEST_F(Layout, anEmptyListClaimsNothingOfDevicesWhileTheAgentIsAbsent) {
    load();
    const auto& list = widget<QWidget>("connectedDevices");
    EXPECT_FALSE(list.accessibleDescription().contains("No device connected"));
    agentSends(Message(message::pingAnswer));
    EXPECT_TRUE(list.accessibleDescription().contains("No device connected"));
    pane.appDidNotAnswer();
    EXPECT_FALSE(list.accessibleDescription().contains("No device connected"));
}

} // namespace
} // namespace zarvil::qt
