#include "PaneHarness.h"
#include "controls/KXButtonCell.h"

namespace zarvil {
namespace {

using Lifecycle = PaneHarness;

TEST_F(Lifecycle, startUpAsksForTheSettingsAndWaitsForNothing) {
    pane.mainViewDidLoad();
    EXPECT_EQ(takeSent(), std::vector{Message(message::prefsLoaded)});
    EXPECT_TRUE(pane.lostConnection);
    EXPECT_EQ(pane.appId, "com.Tessrow.Zarvil");
    for (const View* dimmed : std::initializer_list<const View*>{
             &pane.connectedDevices, &pane.selectedDevices, &pane.scriptsCollection, &pane.pushBox})
        EXPECT_EQ(dimmed->alphaValue(), 0.30000001192092896);
    const auto* cell = pane.toggleMinSec.cellAs<KXButtonCell>();
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->onTitle(), "Min");
    EXPECT_EQ(cell->offTitle(), "Sec");
    EXPECT_TRUE(cell->showStateExtras());
    const auto title = pane.link.attributedTitle().attributesAt(0);
    ASSERT_TRUE(title);
    EXPECT_EQ(title->underlineStyle, UnderlineStyle::Single);
    EXPECT_FALSE(title->link);
}

TEST_F(Lifecycle, theLockShowsWhatTheAuthorityAnswersAndAsksOnlyOnAClick) {
    load();
    ASSERT_EQ(authorization.questions.size(), 1U);
    EXPECT_EQ(authorization.questions[0].right, "system.privilege.admin");
    EXPECT_EQ(authorization.questions[0].interaction, Interaction::None);
    pane.authView.performClick();
    EXPECT_EQ(authorization.questions.size(), 1U) << "a question is still open";
    authorization.questions[0].reply({false, "no authority"});
    EXPECT_FALSE(pane.isUnlocked());
    EXPECT_EQ(pane.authView.reasonProperty().get(), "no authority");
    pane.authView.performClick();
    ASSERT_EQ(authorization.questions.size(), 2U);
    EXPECT_EQ(authorization.questions[1].interaction, Interaction::MayAskUser);
    authorization.questions[1].reply({true, {}});
    EXPECT_TRUE(pane.isUnlocked());
    pane.authView.performClick();
    EXPECT_FALSE(pane.isUnlocked()) << "a click locks an open lock";
    EXPECT_EQ(authorization.released, std::vector<std::string>{"system.privilege.admin"});
    EXPECT_EQ(authorization.questions.size(), 2U);
}

TEST_F(Lifecycle, anAuthoritysLateAnswerTouchesNoPaneThatIsGone) {
    auto passing = std::make_unique<Zarvil_Preferences>(platform);
    passing->mainViewDidLoad();
    const int before = passing->authView.authorizationState();
    int shown = before;
    const Subscription watching =
        passing->authView.stateProperty().observe([&](int state, Transition) { shown = state; });
    const auto reply = authorization.questions.back().reply;
    passing.reset();
    reply({true, {}}); // a sanitizer sees what it touches
    EXPECT_EQ(shown, before);
}

TEST_F(Lifecycle, editsAreHeardOnlyWhileThePaneIsShown) {
    loadWithAgent({{"UsePushover", true}});
    pane.pushValidate.setEnabled(false);
    pane.pushUserName.userDidEdit("a");
    const bool heard = pane.pushValidate.isEnabled();
    EXPECT_EQ(pane.shouldUnselect(), UnselectReply::Now);
    pane.pushValidate.setEnabled(false);
    pane.pushUserName.userDidEdit("ab");
    EXPECT_FALSE(pane.pushValidate.isEnabled());
    EXPECT_TRUE(heard);
}

TEST_F(Lifecycle, leavingClosesTheTipOnceAndKeepsThePings) {
    loadWithAgent();
    Panel tip;
    tip.beginSheet();
    pane.setTtip(&tip);
    pane.testShutdown(&pane.testSettingsButton);
    EXPECT_EQ(pane.shouldUnselect(), UnselectReply::Now);
    pane.willUnselect();
    EXPECT_FALSE(tip.isOnScreen());
    tip.beginSheet();
    pane.didUnselect();
    EXPECT_TRUE(tip.isOnScreen());
    takeSent();
    time.advance(3);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVPing"});
}

TEST_F(Lifecycle, enablingWhileTheAgentIsLostGreysAsDisablingDoes) {
    loadWithAgent({{"UsePushover", true}, {"PushUserId", "u"}, {"ShowStatusIcon", true}});
    const std::vector<Control*> switched{&pane.showIcon,           &pane.monoIcon,
                                         &pane.testSettingsButton, &pane.checkForUpdatesNow,
                                         &pane.checkForUpdates,    &pane.launchAtLogin,
                                         &pane.shutdownDelayText,  &pane.sendEmail,
                                         &pane.forceQuit,          &pane.showShutdownMessage,
                                         &pane.viewLogButton,      &pane.showFailureNotifi,
                                         &pane.toggleMinSec,       &pane.usePushover,
                                         &pane.pushUserName,       &pane.pushDeviceName,
                                         &pane.pushValidate,       &pane.useScriptsButton};
    for (const bool lost : {true, false}) {
        pane.lostConnection = lost;
        pane.uninstallButton.setEnabled(false);
        pane.setInterfaceEnabled(true);
        for (const Control* control : switched)
            EXPECT_EQ(control->isEnabled(), !lost);
        EXPECT_TRUE(pane.uninstallButton.isEnabled());
        EXPECT_TRUE(pane.email.isEnabled());
        EXPECT_TRUE(pane.showConnectMessage.isEnabled());
        EXPECT_EQ(pane.emailLabel.alphaValue(), lost ? 0.5 : 1.0);
        EXPECT_EQ(pane.pushBox.alphaValue(), lost ? 0.30000001192092896 : 1.0);
        EXPECT_EQ(pane.scriptsCollection.alphaValue(), lost ? 0.30000001192092896 : 1.0);
    }
}

TEST_F(Lifecycle, dependentControlsFollowTheirOwnConditions) {
    loadWithAgent();
    struct Case {
        int icon;
        bool protection;
        bool testing;
        bool monoEnabled;
        bool testEnabled;
    };
    for (const Case& c : {Case{0, true, false, false, true}, Case{1, false, false, true, false},
                          Case{-1, true, true, true, false}}) {
        pane.showIcon.setState(c.icon);
        pane.state = c.protection;
        pane.testing = c.testing;
        pane.setInterfaceEnabled(true);
        EXPECT_EQ(pane.monoIcon.isEnabled(), c.monoEnabled);
        EXPECT_EQ(pane.testSettingsButton.isEnabled(), c.testEnabled);
    }
    // With an empty ID the check button stays as it was, enabled or not.
    pane.usePushover.setState(buttonState::on);
    for (const bool before : {true, false}) {
        pane.pushValidate.setEnabled(before);
        pane.setInterfaceEnabled(true);
        EXPECT_EQ(pane.pushValidate.isEnabled(), before);
    }
}

TEST_F(Lifecycle, everyActionAndHandlerIsReachableByItsWireName) {
    loadWithAgent();
    pane.performAction("no such action:", nullptr);
    pane.performHandler("no such handler:", nullptr);
    for (const std::string_view action : Zarvil_Preferences::actionNames())
        pane.performAction(action, nullptr); // no sender: nothing may break
    takeSent();
    pane.performAction("toggleForceQuit:", &pane.forceQuit);
    EXPECT_EQ(takeSent(), std::vector{settingChange("UseForce", false)});
    const Message prefs(message::savedPrefs, Dictionary{{"UseForce", true}});
    pane.performHandler("setupPrefs:", &prefs);
    EXPECT_EQ(pane.forceQuit.state(), buttonState::on);
}

} // namespace
} // namespace zarvil
