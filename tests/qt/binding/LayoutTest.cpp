#include "ControlCases.h"
#include "PaneHarness.h"
#include "pane/Help.h"
#include "qt/adapters/QtStringTable.h"
#include "qt/binding/LockWidget.h"
#include "qt/binding/OutletBinder.h"
#include "qt/binding/Spinner.h"
#include "qt/canvas/Convert.h"
#include "qt/devices/DeviceListView.h"
#include "qt/pane/HelpWindow.h"
#include "qt/pane/PaneView.h"
#include "qt/widgets/Contrast.h"
#include "qt/widgets/Form.h"
#include "qt/widgets/MarginScrollBar.h"
#include "qt/widgets/TextLabel.h"
#include "qt/widgets/Theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QGraphicsOpacityEffect>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTranslator>

#include <algorithm>
#include <tuple>

namespace zarvil::qt {
namespace {

class Layout : public PaneHarness {
protected:
    ~Layout() override { bindings.clear(); }

    template <typename Widget>
    Widget& widget(const char* name) {
        auto* found = view.findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    /// Shows the view on a page and gives a field the keyboard.
    void focus(QWidget& field, int page) {
        widget<QTabWidget>("tabView").setCurrentIndex(page);
        view.show();
        view.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
        field.setFocus();
        ASSERT_TRUE(field.hasFocus());
    }

    PaneView view;
    Subscriptions bindings;
    Faults faults = bindOutlets(pane, view, bindings);
};

/// The texts in a language, in force before anything shows one.
class Spoken : public testing::WithParamInterface<const char*> {
protected:
    Spoken() {
        const QString file = QStringLiteral("zarvil_") + GetParam();
        if (!translator_.load(file, ZARVIL_QM_FOLDER))
            throw std::runtime_error(std::string("no language ") + GetParam());
        QCoreApplication::installTranslator(&translator_);
        fake::StringTable::inherited = &table_;
    }
    ~Spoken() { fake::StringTable::inherited = nullptr; }

private:
    QTranslator translator_;
    QtStringTable table_;
};

class LayoutIn : public Spoken, public Layout {};
INSTANTIATE_TEST_SUITE_P(Languages, LayoutIn,
                         testing::Values("en", "de", "es", "fr", "uk", "ar", "pseudo"),
                         [](const auto& language) { return std::string(language.param); });

constexpr int generalPage = 1;
constexpr int alertsPage = 2;
constexpr int scriptsPage = 3;

/// What of the shown widgets does not fit: text that needs more room than it has, a child that
/// leaves its parent, neighbours that overlap, and a row with an empty space of its own.
QStringList misfits(const QWidget& top) {
    QStringList found;
    for (const auto* row : top.findChildren<Row*>())
        if (row->isVisible() && row->height() != row->heightForWidth(row->width()))
            found += row->objectName() + " is not as high as what it holds";
    for (const auto* widget : top.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const TextLabel*>(widget);
        const bool isPart = label || qobject_cast<const QAbstractButton*>(widget) ||
                            qobject_cast<const QLineEdit*>(widget);
        // A tab bar that is too narrow scrolls.
        if (!isPart || !widget->isVisible() || qobject_cast<QTabBar*>(widget->parentWidget()))
            continue;
        const QString name = widget->parentWidget()->objectName() + '/' + widget->objectName();
        if (label && !label->isElided() && label->heightForWidth(label->width()) > label->height())
            found += name + " is clipped";
        if (qobject_cast<const QPushButton*>(widget) &&
            widget->width() < widget->sizeHint().width())
            found += name + " is too narrow";
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            found += name + " leaves its parent";
        for (const auto* other :
             widget->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (other != widget && other->isVisible() &&
                other->geometry().intersects(widget->geometry()))
                found += name + " overlaps " + other->objectName();
    }
    return found;
}

TEST_F(Layout, hasAWidgetForEveryOutletAndNamesOnlyKnownOnes) { EXPECT_EQ(faults, Faults{}); }

TEST_F(Layout, tellsOfWidgetsThatAreMissingUnknownOrOfTheWrongKind) {
    QWidget broken;
    auto* misnamed = new QLabel(&broken);
    misnamed->setObjectName("showIcon");
    auto* unknown = new QPushButton(&broken);
    unknown->setObjectName("nobodyKnowsThis");
    unknown->setProperty("action", "nobody:");
    Subscriptions none;
    const Faults found = bindOutlets(pane, broken, none);
    for (const char* fault :
         {"no widget for the outlet email", "the widget of showIcon is of the wrong kind",
          "no outlet for the widget nobodyKnowsThis", "no action nobody:"})
        EXPECT_EQ(std::ranges::count(found, fault), 1) << fault;
}

TEST_P(LayoutIn, givesNoMnemonicTwiceOnOnePage) {
    auto& tabs = widget<QTabWidget>("tabView");
    for (int page = 0; page < tabs.count(); ++page) {
        QStringList letters;
        const auto add = [&](const QString& text) {
            letters += QKeySequence::mnemonic(text).toString();
        };
        for (int tab = 0; tab < tabs.count(); ++tab)
            add(tabs.tabText(tab));
        add(widget<QPushButton>("launchButton").text());
        // Underlined letters would tear the Arabic titles of the tabs apart.
        const int unmarked = std::string_view(GetParam()) == "ar" ? 5 : 0;
        EXPECT_EQ(letters.count(QString()), unmarked);
        add(widget<QLabel>("onDesc").text()); // not every language has a letter left for it
        for (const auto* button : tabs.widget(page)->findChildren<QAbstractButton*>())
            add(button->text());
        for (const auto* label : tabs.widget(page)->findChildren<QLabel*>())
            if (label->buddy())
                add(label->text());
        letters.removeAll(QString());
        EXPECT_FALSE(letters.isEmpty());
        EXPECT_EQ(letters.removeDuplicates(), 0)
            << (letters.join(QChar(0x20)) + " on " + tabs.tabText(page)).toStdString();
    }
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

TEST_P(LayoutIn, clipsAndOverlapsNothing) {
    struct Case {
        double points;
        QSize size;
        Qt::LayoutDirection direction;
    };
    const QFont before = QApplication::font();
    loadWithAgent({{"UsePushover", true}, {"PushUserId", "u"}});
    const Message invalid(message::pushValidationFinished, Dictionary{{"code", 1}});
    agentSends(invalid);
    for (const bool present : {true, false}) {
        if (!present)
            pane.appDidNotAnswer();
        for (const Case& c : std::vector<Case>{{10, {480, 400}, Qt::LeftToRight},
                                               {10, {680, 640}, Qt::RightToLeft},
                                               {10, {1600, 900}, Qt::LeftToRight},
                                               {18, {640, 420}, Qt::RightToLeft},
                                               {18, {1024, 600}, Qt::LeftToRight}}) {
            QFont font = before;
            font.setPointSizeF(c.points);
            QApplication::setFont(font);
            view.setLayoutDirection(c.direction);
            view.resize(c.size);
            view.show();
            EXPECT_EQ(view.size(), c.size) << c.points << " pt";
            EXPECT_LE(widget<QWidget>("chooseDevices").sizeHint().height(),
                      widget<QWidget>("statusLine").sizeHint().height());
            const auto& heading = widget<QWidget>("ConnectedCaptionRow");
            const QRect& list = widget<QWidget>("connectedDevices").geometry();
            EXPECT_TRUE(QTest::qWaitFor([&] {
                return !heading.isVisible() || list.top() - heading.geometry().bottom() < 20;
            }));
            for (int page = 0; page < 5; ++page) {
                widget<QTabWidget>("tabView").setCurrentIndex(page);
                static_cast<void>(QTest::qWaitFor([this] { return misfits(view).isEmpty(); }));
                EXPECT_EQ(misfits(view).join("; ").toStdString(), "")
                    << c.points << " pt, " << c.size.width() << " wide, page " << page;
                const QRect columns = widget<QWidget>("DeviceColumns").geometry();
                EXPECT_TRUE(present || page > 0 ||
                            widget<QWidget>("devicesUnknown").geometry() == columns);
            }
        }
    }
    QApplication::setFont(before);
}

} // namespace
} // namespace zarvil::qt
