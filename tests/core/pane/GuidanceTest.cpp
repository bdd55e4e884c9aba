#include "PaneHarness.h"

namespace zarvil {
namespace {

class GuidanceTest : public PaneHarness {
protected:
    /// As a layout wires them.
    GuidanceTest() {
        pane.shutdownDelayText.setAction("setShutdownDelay:");
        pane.toggleMinSec.setAction("toggleMinutesSeconds:");
        pane.showShutdownMessage.setAction("toggleShowShutdownMessage:");
        pane.togglePowerButton.setAction("toggleOnOff:");
        pane.testSettingsButton.setAction("testShutdown:");
        for (Control* control : std::initializer_list<Control*>{
                 &pane.shutdownDelayText, &pane.toggleMinSec, &pane.showShutdownMessage,
                 &pane.togglePowerButton, &pane.testSettingsButton})
            control->setTarget(&pane);
    }

    void watch(int count) {
        Array devices;
        for (int index = 0; index < count; ++index)
            devices.emplace_back(Dictionary{{"DeviceName", std::to_string(index)}});
        agentSends(Message(message::allSavedDevices, Dictionary{{"devices", devices}}));
    }
    Guidance& said = pane.guidance;
};

TEST_F(GuidanceTest, theFirstLineSaysWhetherTheComputerIsProtected) {
    load();
    EXPECT_EQ(said.statusLine.stringValue(), "Looking for Zarvil…");
    EXPECT_TRUE(said.statusIndicator.isAnimating());
    struct Case {
        std::optional<std::int64_t> delay;
        int watched;
        std::string_view line;
    };
    for (const Case& c :
         std::vector<Case>{{60, 0, "No device is watched, so a power failure goes unnoticed."},
                           {60, 1, "1 device watched · shuts down after 60 seconds"},
                           {1, 2, "2 devices watched · shuts down after 1 second"},
                           {119, 2, "2 devices watched · shuts down after 119 seconds"},
                           {120, 2, "2 devices watched · shuts down after 2 minutes"},
                           {0, 2, "2 devices watched · shuts down at once"},
                           {-5, 2, "2 devices watched"},
                           {std::nullopt, 2, "2 devices watched"}}) {
        Dictionary settings;
        if (c.delay)
            settings.setObject("ShutdownDelay", *c.delay);
        agentSends(Message(message::savedPrefs, settings));
        agentSends(Message(message::stateChanged, Dictionary{{"state", true}}));
        watch(c.watched);
        EXPECT_EQ(said.statusLine.stringValue(), c.line);
        EXPECT_EQ(said.statusSymbol.symbol(), c.watched ? Symbol::Shield : Symbol::Warning);
        EXPECT_FALSE(said.statusIndicator.isAnimating());
    }
    enter(pane.shutdownDelayText, "240");
    EXPECT_EQ(said.statusLine.stringValue(), "2 devices watched · shuts down after 4 minutes");
    pane.togglePowerButton.performClick();
    EXPECT_EQ(said.statusLine.stringValue(), "Nothing happens when the power fails.");
    EXPECT_EQ(said.statusSymbol.symbol(), Symbol::ShieldOff);
}

TEST_F(GuidanceTest, aCountStandsBesideAListThatHoldsSomething) {
    loadWithAgent();
    EXPECT_TRUE(said.connectedCount.isHidden());
    EXPECT_TRUE(said.watchedCount.isHidden());
    EXPECT_TRUE(said.devicesHint.isHidden());
    std::vector<std::string> counts;
    const Subscription told = said.watchedCount.stringProperty().observe(
        [&counts](const std::string& count, Transition) { counts.push_back(count); });
    watch(3);
    EXPECT_FALSE(said.watchedCount.isHidden());
    EXPECT_EQ(counts, (std::vector<std::string>{"0", "3"})) << "one count a message";
    EXPECT_TRUE(said.connectedCount.isHidden());
    EXPECT_FALSE(said.devicesHint.isHidden());
    agentSends(Message(message::deviceConnected, Dictionary{{"DeviceName", "UPS"}}));
    EXPECT_FALSE(said.connectedCount.isHidden());
    EXPECT_EQ(said.connectedCount.integerValue(), 1);
}

TEST_F(GuidanceTest, theLinkLeadsToTheDevicesFromEveryOtherPage) {
    loadWithAgent();
    EXPECT_TRUE(said.chooseDevices.isHidden());
    said.selectTab(Tab::Alerts);
    EXPECT_FALSE(said.chooseDevices.isHidden());
    said.chooseDevices.performClick();
    EXPECT_EQ(said.selectedTabProperty().get(), Tab::Devices);
    EXPECT_TRUE(said.chooseDevices.isHidden());
    said.selectTab(Tab::Alerts);
    watch(1);
    EXPECT_TRUE(said.chooseDevices.isHidden());
}

TEST_F(GuidanceTest, anAbsentAgentIsABannerThatSaysWhatToDo) {
    load();
    EXPECT_FALSE(said.agentRow.isProminent()) << "not before it is known";
    pane.appDidNotAnswer();
    EXPECT_TRUE(said.agentRow.isProminent());
    EXPECT_EQ(said.agentHint.stringValue(),
              "Launch it to see your devices and change the settings.");
    EXPECT_FALSE(said.connectMessageHint.isHidden());
    EXPECT_EQ(said.emailHint.stringValue(), "Not stored while Zarvil is not running.");
    pane.launchButton.performClick();
    EXPECT_EQ(said.agentHint.stringValue(), "Launching it…");
    EXPECT_TRUE(said.agentIndicator.isAnimating());
    pane.appDidNotAnswer();
    EXPECT_FALSE(said.agentIndicator.isAnimating());
    workspace.launches = false;
    pane.launchButton.performClick();
    EXPECT_EQ(said.agentHint.stringValue(), "Zarvil is not installed.");
    workspace.launches = true;
    pane.appDidNotAnswer();
    EXPECT_EQ(said.agentHint.stringValue(),
              "Launch it to see your devices and change the settings.");
    workspace.launches = false;
    pane.appDidNotAnswer();
    EXPECT_EQ(said.agentHint.stringValue(), "Zarvil is not installed.");
    said.busDidChange(false);
    EXPECT_NE(said.agentHint.stringValue().find("session bus"), std::string::npos);
    said.busDidChange(true);
    agentSends(message::pingAnswer);
    EXPECT_FALSE(said.agentRow.isProminent());
    EXPECT_TRUE(said.agentHint.isHidden());
    EXPECT_TRUE(said.connectMessageHint.isHidden());
}

TEST_F(GuidanceTest, announcesWhatHappensBesideTheUsersOwnDoing) {
    pane.launchedDesc.setStringValue("running");
    pane.notLaunchedDesc.setStringValue("not running");
    load();
    std::vector<std::string> heard;
    const Subscription listening =
        said.observeAnnouncements([&heard](const std::string& words) { heard.push_back(words); });
    const Dictionary device{{"DeviceName", "UPS"}};
    agentSends(message::pingAnswer);
    agentSends(Message(message::deviceConnected, device));
    agentSends(Message(message::deviceDisconnected, device));
    agentSends(Message(message::deviceConnected, Dictionary{{"DeviceName", ""}}));
    agentSends(Message(message::pushValidationFinished, Dictionary{{"code", 1}}));
    pane.appDidNotAnswer();
    pane.appDidNotAnswer();
    agentSends(message::pingAnswer);
    EXPECT_EQ(heard, (std::vector<std::string>{
                         "Connected: UPS", "Disconnected: UPS", "Connected: Unnamed device",
                         pane.pushValidationStatus.stringValue(), "not running", "running"}));
}

TEST_F(GuidanceTest, aGreyedControlSaysWhy) {
    loadWithAgent({{"HideShutdownMessage", true}}, false);
    EXPECT_TRUE(said.delayHint.stringValue().starts_with("Seconds from"));
    pane.toggleMinSec.performClick();
    EXPECT_TRUE(said.delayHint.stringValue().starts_with("Minutes from"));
    pane.showShutdownMessage.performClick();
    EXPECT_EQ(said.delayHint.stringValue(), "Cannot be changed while the warning hides itself.");
    pane.showShutdownMessage.performClick();
    EXPECT_TRUE(said.delayHint.stringValue().starts_with("Minutes from"));
    EXPECT_EQ(said.testHint.stringValue(), "Switch the protection on to test it.");
    pane.togglePowerButton.performClick();
    EXPECT_EQ(said.testHint.stringValue(), "Plays the whole sequence without shutting down.");
    pane.testSettingsButton.performClick();
    EXPECT_EQ(said.testHint.stringValue(), "A test is running. Nothing is shut down.");
    EXPECT_TRUE(said.testIndicator.isAnimating());
    agentSends(message::testFinished);
    EXPECT_EQ(said.testHint.stringValue(), "The test has ended. Nothing was shut down.");
    EXPECT_FALSE(said.testIndicator.isAnimating());
    pane.testSettingsButton.performClick();
    pane.appDidNotAnswer();
    EXPECT_FALSE(said.testIndicator.isAnimating());
    EXPECT_FALSE(said.testHint.isEnabled());
}

TEST_F(GuidanceTest, theLockGivesItsReasonOnlyToWhoAsks) {
    load();
    EXPECT_NE(said.lockLine.stringValue().find("checking"), std::string::npos);
    authorization.questions.at(0).reply({false, "polkit is not there."});
    EXPECT_EQ(said.lockLine.stringValue(),
              "Administrator rights: locked · not needed for any setting here");
    pane.authView.performClick();
    authorization.questions.at(1).reply({false, "polkit is not there."});
    EXPECT_EQ(said.lockLine.stringValue(), "Administrator rights: locked · polkit is not there.");
    EXPECT_EQ(said.lockSymbol.symbol(), Symbol::Lock);
}

TEST_F(GuidanceTest, theLockSaysUnaskedThatItsAuthorityIsMissing) {
    load();
    authorization.questions.at(0).reply({false, "polkit is not there.", "polkit"});
    EXPECT_EQ(said.lockLine.stringValue(),
              "Administrator rights: polkit missing · not needed for any setting here");
    pane.authView.performClick();
    authorization.questions.at(1).reply({false, "You may not.", {}});
    EXPECT_EQ(said.lockLine.stringValue(), "Administrator rights: locked · You may not.");
}

} // namespace
} // namespace zarvil
