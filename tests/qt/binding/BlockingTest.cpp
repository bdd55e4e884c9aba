#include "EventWait.h"
#include "PaneHarness.h"
#include "platform/AlertQueue.h"
#include "qt/binding/AlertBox.h"
#include "qt/binding/FirstPicture.h"
#include "qt/binding/OutletBinder.h"
#include "qt/binding/ScriptWindow.h"
#include "qt/pane/PaneView.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace zarvil::qt {
namespace {

/// A pane in a real event loop, where alerts and script windows are windows.
class Blocking : public PaneHarness {
protected:
    Blocking() {
        errors.whilePresenting = [this] { alerts.presentError(errors.presented.back()); };
        view.makeAllParts();
        bindGuidance(pane, view, bindings);
        bindOutlets(pane, view, bindings);
        view.show();
    }
    ~Blocking() override { bindings.clear(); }

    static std::vector<QDialog*> dialogs() {
        std::vector<QDialog*> shown;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
                shown.push_back(dialog);
        return shown;
    }

    AlertQueue alerts{handlers, strings};
    PaneView view;
    Subscriptions bindings;
    std::unique_ptr<AlertBox> alertBox = std::make_unique<AlertBox>(alerts, view);
    ScriptWindow scriptWindow{pane.scriptProgress, view};
};

TEST_F(Blocking, theFirstPictureWaitsForTheAgentButNotLong) {
    FirstPicture picture(view, pane.guidance.statusIndicator.animatingProperty());
    load();
    picture.putOff();
    EXPECT_FALSE(view.updatesEnabled());
    EXPECT_TRUE(waitFor([this] { return view.updatesEnabled(); })) << "the agent is silent";
    picture.putOff();
    EXPECT_FALSE(view.updatesEnabled());
    agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
    EXPECT_TRUE(view.updatesEnabled());
    picture.putOff();
    EXPECT_TRUE(view.updatesEnabled()) << "nothing is awaited";
}

TEST_F(Blocking, oneAlertIsOpenAtATimeWhileTheAgentsMessagesGoOn) {
    files.files["/home/user/Library/Zarvil Scripts"] = ""; // so the folder cannot be made
    load();
    const auto agentAnswers = [this] {
        agentSends(Message(message::savedPrefs, Dictionary{{"UseScripts", true}}));
        agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
    };
    for (int round = 0; round < 3; ++round) {
        agentAnswers();
        QApplication::processEvents();
        time.advance(5.5); // and it misses a ping
        EXPECT_EQ(dialogs().size(), 1U);
    }
    agentAnswers();
    alerts.presentError({"d", 1, "<b>another</b>"});
    EXPECT_EQ(dialogs().size(), 1U);
    EXPECT_TRUE(pane.state);
    for (const Message& sent : takeSent())
        EXPECT_FALSE(sent.name == message::setState && !sent.info().boolForKey("state"));

    dialogs().at(0)->close();
    auto* second = qobject_cast<QMessageBox*>(dialogs().at(0));
    ASSERT_EQ(dialogs().size(), 1U);
    EXPECT_EQ(second->text(), "<b>another</b>");
    EXPECT_EQ(second->textFormat(), Qt::PlainText);
    EXPECT_EQ(second->windowModality(), Qt::WindowModal);
    const auto id = QAccessible::uniqueId(QAccessible::queryAccessibleInterface(second));
    QTest::keyClick(second, Qt::Key_Return);
    EXPECT_TRUE(dialogs().empty());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr) << "the next has its address";

    alerts.presentError({"d", 2, "open while the pane goes"});
    alertBox.reset();
    EXPECT_TRUE(dialogs().empty());
}

TEST_F(Blocking, aRunningScriptTakesNoInputButStop) {
    loadWithAgent();
    auto* box = view.findChild<QCheckBox*>("forceQuit");
    scriptRunner.lasting = true;
    handlers.run([this] { pane.scriptProgress.run("a", "sleep 1000", [](const ScriptError*) {}); });
    EXPECT_TRUE(dialogs().empty());
    QTest::mouseClick(box, Qt::LeftButton);
    QTest::keyClick(box, Qt::Key_Space);
    time.advance(1);
    ASSERT_EQ(dialogs().size(), 1U);
    QDialog& window = *dialogs().at(0);
    EXPECT_TRUE(window.findChild<QLabel*>()->text().contains("“a”"));
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(window.focusWidget() ? window.focusWidget() : &window, Qt::Key_Space);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_TRUE(scriptRunner.log.empty());
    EXPECT_TRUE(window.isVisible());
    auto* stop = window.findChild<QPushButton*>();
    QTest::mouseClick(stop, Qt::LeftButton);
    QTest::mouseClick(stop, Qt::LeftButton);
    EXPECT_EQ(scriptRunner.log, std::vector<std::string>{"stop"});
    EXPECT_FALSE(stop->isEnabled());
    scriptRunner.end(std::nullopt);
    EXPECT_TRUE(dialogs().empty());
    EXPECT_TRUE(takeSent().empty());
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    EXPECT_EQ(takeSent(), std::vector{settingChange("UseForce", true)});
}

} // namespace
} // namespace zarvil::qt
