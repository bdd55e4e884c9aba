#include "PaneHarness.h"
#include "interface/MouseLoop.h"
#include "pane/Product.h"

#include <algorithm>
#include <random>

namespace zarvil {
namespace {

class Presence : public PaneHarness {
protected:
    bool looksAbsent() const {
        return !pane.togglePowerButton.isEnabled() && !pane.notLaunchedDesc.isHidden() &&
               pane.launchedDesc.isHidden() && pane.launchButton.title() == "Launch Zarvil" &&
               pane.launchButton.action() == "launchApp:" &&
               pane.connectedDevices.alphaValue() == 0.30000001192092896 &&
               pane.selectedDevices.alphaValue() == 0.30000001192092896;
    }
    bool looksRunning() const {
        return pane.togglePowerButton.isEnabled() && pane.notLaunchedDesc.isHidden() &&
               !pane.launchedDesc.isHidden() && pane.launchButton.title() == "Quit Zarvil" &&
               pane.launchButton.action() == "quitApp:" &&
               pane.connectedDevices.alphaValue() == 1 && pane.selectedDevices.alphaValue() == 1;
    }
    void fillLists() {
        pane.arrayController.addObject(makeRecord({}));
        pane.savedArrayController.addObject(makeRecord({}));
    }
};

TEST_F(Presence, pingsEveryThreeSecondsFromTheThirdOn) {
    load();
    time.advance(2.9);
    EXPECT_TRUE(takeSent().empty());
    time.advance(6.2);
    EXPECT_EQ(takeSentNames(), (std::vector<std::string>{"ZVPing", "ZVPing", "ZVPing"}));
}

TEST_F(Presence, greysWithinFiveSecondsOfTheAgentsDeathAndNotBefore) {
    loadWithAgent();
    fillLists();
    pane.pushIndicator.startAnimation();
    ASSERT_TRUE(looksRunning());
    time.advance(4.9);
    EXPECT_TRUE(looksRunning());
    time.advance(0.1);
    EXPECT_TRUE(looksAbsent());
    EXPECT_FALSE(pane.state);
    EXPECT_EQ(pane.togglePowerButton.state(), buttonState::off);
    EXPECT_TRUE(pane.onDesc.isHidden());
    EXPECT_FALSE(pane.offDesc.isHidden());
    EXPECT_TRUE(pane.arrayController.empty());
    EXPECT_TRUE(pane.savedArrayController.empty());
    EXPECT_FALSE(pane.pushIndicator.isAnimating());
}

TEST_F(Presence, anyAnsweringMessageWithinTwoSecondsKeepsThePaneAlive) {
    loadWithAgent({}, false);
    time.advance(1.9);
    for (const std::string_view answer : {message::pingAnswer, message::stateChanged,
                                          message::deviceConnected, message::deviceDisconnected}) {
        time.advance(3);
        EXPECT_EQ(time.pendingCount(), 2U) << "the ping and the wait for its answer";
        agentSends(answer);
        EXPECT_EQ(time.pendingCount(), 1U) << answer;
        EXPECT_TRUE(looksRunning()) << answer;
    }
    EXPECT_FALSE(pane.lostConnection);
}

TEST_F(Presence, messagesThatAreNoAnswersDoNot) {
    loadWithAgent();
    time.advance(4);
    for (const std::string_view name : {message::savedPrefs, message::testFinished,
                                        message::allDevices, message::pushValidationFinished})
        agentSends(name);
    time.advance(1);
    EXPECT_TRUE(looksAbsent());
}

TEST_F(Presence, anAgentIsNotAbsentWhileWhatItSentIsBeingRead) {
    loadWithAgent();
    bus.setBehind(true);
    time.advance(20);
    EXPECT_TRUE(looksRunning());
    bus.setBehind(false);
    time.advance(2);
    EXPECT_TRUE(looksAbsent());
}

TEST_F(Presence, theFirstAnswerAfterEachLossAsksOnceForEverything) {
    loadWithAgent();
    for (int round = 0; round < 3; ++round) {
        time.advance(5.5);
        EXPECT_TRUE(looksAbsent());
        fillLists();
        takeSent();
        agentSends(message::pingAnswer);
        agentSends(message::pingAnswer);
        EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVPrefsLoaded"});
        EXPECT_TRUE(looksRunning());
        EXPECT_TRUE(pane.launchAtLogin.isEnabled());
        EXPECT_TRUE(pane.arrayController.empty());
        EXPECT_TRUE(pane.savedArrayController.empty());
        time.advance(0.5);
    }
}

TEST_F(Presence, aTimeOutInTheAbsentLookOnlyReleasesTheLaunchButton) {
    load();
    ASSERT_TRUE(looksAbsent());
    pane.launchButton.performClick();
    EXPECT_FALSE(pane.launchButton.isEnabled());
    pane.showIcon.setEnabled(true);
    time.advance(5);
    EXPECT_TRUE(pane.launchButton.isEnabled());
    EXPECT_TRUE(pane.showIcon.isEnabled());
    EXPECT_TRUE(pane.lostConnection);
}

TEST_F(Presence, theLaunchButtonLaunchesQuitsAndLaunchesWhenProtectionIsOff) {
    load();
    pane.launchButton.performClick();
    agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
    takeSent();
    pane.launchButton.performClick();
    EXPECT_FALSE(pane.launchButton.isEnabled());
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVQuit"});
    agentSends(Message(message::stateChanged, Dictionary{{"state", false}}));
    takeSent();
    pane.launchButton.performClick();
    EXPECT_TRUE(takeSent().empty());
    EXPECT_EQ(workspace.launched,
              (std::vector<std::string>{"/Applications/Zarvil.app", "/Applications/Zarvil.app"}));
}

/// A switch as a front end operates it, with a hand that does anything.
struct Hand {
    Button& button;
    std::mt19937& random;
    MouseLoop loop{button};

    double upTo(double most) { return std::uniform_real_distribution<double>(0, most)(random); }
    void move() {
        // The middle of 60 points, too: 18 + (26 - 2) / 2.
        const Point point{random() % 4 == 0 ? 18 : upTo(60), upTo(26)};
        switch (random() % 6) {
        case 0:
            return button.performClick();
        case 1:
            return loop.cancel();
        case 2:
            loop.press(point);
            return;
        case 3:
            return loop.drag(point);
        default:
            return loop.release(point);
        }
    }
};

TEST_F(Presence, switchTextsAndStateAgreeAfterEveryGestureClickAndReport) {
    loadWithAgent({}, false);
    std::mt19937 random(9);
    Hand power{pane.togglePowerButton, random};
    Hand unit{pane.toggleMinSec, random};
    power.button.setAction("toggleOnOff:");
    unit.button.setAction("toggleMinutesSeconds:");
    for (Hand* hand : {&power, &unit})
        hand->button.setFrame({0, 0, 60, 26});
    int flips = 0;
    for (int step = 0; step < 20000; ++step) {
        time.advance(power.upTo(0.3));
        if (step % 500 != 499) // now and then the agent misses a ping
            agentSends(message::pingAnswer);
        else
            time.advance(5);
        takeSent();
        pane.shutdownDelayText.setIntegerValue(120);
        const bool stateBefore = pane.state;
        const int unitBefore = unit.button.state();
        switch (random() % 3) {
        case 0:
            agentSends(Message(message::stateChanged, Dictionary{{"state", random() % 2 == 0}}));
            break;
        case 1:
            power.move();
            break;
        default:
            unit.move();
        }
        const bool flipped = pane.state != stateBefore;
        flips += flipped ? 1 : 0;
        const auto sent = takeSent();
        const Message told(message::setState, Dictionary{{"state", pane.state}});
        ASSERT_EQ(std::ranges::count(sent, message::setState, &Message::name), flipped) << step;
        ASSERT_EQ(std::ranges::count(sent, told), flipped) << step;
        ASSERT_EQ(pane.testSettingsButton.isEnabled(), pane.state) << step;
        ASSERT_EQ(power.button.state(), pane.state ? 1 : 0) << step;
        ASSERT_EQ(pane.onDesc.isHidden(), !pane.state) << step;
        ASSERT_EQ(pane.offDesc.isHidden(), pane.state) << step;
        const bool minutes = unit.button.state() == 1;
        const std::int64_t converted = minutes ? 2 : 7200;
        ASSERT_EQ(pane.shutdownDelayText.integerValue(),
                  unit.button.state() == unitBefore ? 120 : converted)
            << step;
        ASSERT_EQ(defaults.values["kZVShowMinutes"], minutes) << step;
    }
    EXPECT_GT(flips, 1000);
}

TEST_F(Presence, aStateReportFlipsTheSwitchAndIsEchoedOnlyWhenItDiffers) {
    loadWithAgent({}, false);
    agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
    EXPECT_EQ(takeSent(), std::vector{Message(message::setState, Dictionary{{"state", true}})});
    EXPECT_EQ(pane.togglePowerButton.state(), buttonState::on);
    agentSends(Message(message::stateChanged, Dictionary{{"state", 1.0}}));
    EXPECT_TRUE(takeSent().empty());
    agentSends(message::stateChanged);
    EXPECT_EQ(takeSent(), std::vector{Message(message::setState, Dictionary{{"state", false}})});
}

TEST_F(Presence, aLostLinkIsSaidInWordsAndGreysAtOnce) {
    const std::string lost = "The session bus does not answer, so Zarvil cannot be reached.";
    loadWithAgent();
    ASSERT_NE(pane.guidance.agentHint.stringValue(), lost);
    bus.announce(LinkEvent::Down);
    EXPECT_EQ(pane.guidance.agentHint.stringValue(), lost);
    EXPECT_FALSE(pane.guidance.agentHint.isHidden());
    EXPECT_TRUE(looksAbsent());
    bus.announce(LinkEvent::Up);
    EXPECT_NE(pane.guidance.agentHint.stringValue(), lost);
    EXPECT_TRUE(looksAbsent()) << "the agent has not answered yet";
}

TEST_F(Presence, aNewAgentIsAskedForItsOwnSettingsAndLists) {
    loadWithAgent();
    fillLists();
    bus.announce(LinkEvent::NewPeer);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVPing"});
    agentSends(message::pingAnswer);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVPrefsLoaded"});
    EXPECT_TRUE(pane.arrayController.empty());
    EXPECT_TRUE(pane.savedArrayController.empty());
    EXPECT_TRUE(looksRunning());
}

TEST_F(Presence, quitPrefsKillsTheFirstHostListedAndExitsInAnyCase) {
    load();
    agentSends(message::quitPrefs);
    workspace.running = {
        {"org.other", 1}, {"com.Tessrow.Preferences", 42}, {"com.Tessrow.Preferences", 43}};
    agentSends(message::quitPrefs);
    workspace.hostIdentifier.clear();
    workspace.running = {{"", 42}}; // without an identifier it is nobody's host
    agentSends(message::quitPrefs);
    EXPECT_EQ(processes.log, (std::vector<std::string>{"exit 0", "kill 42", "exit 0", "exit 0"}));
}

} // namespace
} // namespace zarvil
