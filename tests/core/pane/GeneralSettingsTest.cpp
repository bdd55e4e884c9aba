#include "PaneHarness.h"
#include "protocol/Settings.h"

#include <limits>

namespace zarvil {
namespace {

constexpr auto largest = std::numeric_limits<std::int64_t>::max();

class GeneralSettings : public PaneHarness {
protected:
    std::int64_t lastDelay() {
        const auto sent = takeSent();
        EXPECT_EQ(sent.size(), 1U);
        EXPECT_EQ(*sent.back().info().stringForKey("prefKey"), "ShutdownDelay");
        return sent.back().info().integerForKey("prefObj");
    }
};

TEST_F(GeneralSettings, eachCheckBoxSendsItsOneSettingAtOnceAndTouchesNothingElse) {
    loadWithAgent();
    struct Case {
        Button& box;
        std::string_view action;
        std::string_view key;
    };
    for (const Case& c :
         {Case{pane.launchAtLogin, "setShouldLaunchAtLogin:", "LaunchAtLogin"},
          Case{pane.showIcon, "toggleShowIcon:", "ShowStatusIcon"},
          Case{pane.monoIcon, "toggleMonoIcon:", "StatusIconMono"},
          Case{pane.forceQuit, "toggleForceQuit:", "UseForce"},
          Case{pane.showConnectMessage, "toggleShowConnectedMessage:", "NewDeviceMessage"},
          Case{pane.showShutdownMessage, "toggleShowShutdownMessage:", "ShutdownMessage"},
          Case{pane.showFailureNotifi, "showFailNotifi:", "ShowFailNotifi"},
          Case{pane.checkForUpdates, "autoUpdates:", "SUEnableAutomaticChecks"}}) {
        c.box.setEnabled(true);
        c.box.setAction(c.action);
        const bool monoEnabled = pane.monoIcon.isEnabled();
        for (const bool on : {true, false}) {
            c.box.performClick();
            EXPECT_EQ(takeSent(), std::vector{settingChange(c.key, on)});
        }
        c.box.setState(buttonState::mixed);
        c.box.sendAction();
        EXPECT_EQ(takeSent(), std::vector{settingChange(c.key, true)});
        EXPECT_EQ(pane.monoIcon.isEnabled(), monoEnabled);
    }
}

TEST_F(GeneralSettings, savedSettingsAreShownAndAnEmptyOnesClearThem) {
    load();
    pane.showConnectMessage.setState(buttonState::on);
    const std::vector<std::pair<std::string, Button*>> boxes{
        {"LaunchAtLogin", &pane.launchAtLogin},
        {"ShowStatusIcon", &pane.showIcon},
        {"UseForce", &pane.forceQuit},
        {"StatusIconMono", &pane.monoIcon},
        {"ShutdownMessage", &pane.showShutdownMessage},
        {"HideShutdownMessage", &pane.hideShutdownMessageButton},
        {"ShowFailNotifi", &pane.showFailureNotifi},
        {"SUEnableAutomaticChecks", &pane.checkForUpdates}};
    for (const auto& [key, box] : boxes) {
        agentSends(Message(message::savedPrefs, Dictionary{{key, true}}));
        for (const auto& [other, shown] : boxes)
            EXPECT_EQ(shown->state(), shown == box ? 1 : 0) << key << " and " << other;
        EXPECT_EQ(pane.hideShutdownMessage.isEnabled(), key == "ShutdownMessage");
    }
    agentSends(message::savedPrefs);
    for (const auto& [key, box] : boxes)
        EXPECT_EQ(box->state(), buttonState::off) << key;
    EXPECT_EQ(pane.showConnectMessage.state(), buttonState::on) << "is never read";
    EXPECT_FALSE(pane.lostConnection);
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(GeneralSettings, settingsOfTheWrongTypesDoNoHarm) {
    load();
    for (const Value& wrong : std::vector<Value>{"", "nonsense", Array{1}, Dictionary{{"a", 1}},
                                                 Data(2), 1e300, -1, std::string(1 << 20, 'x')}) {
        Dictionary settings;
        for (const setting::Description& description : setting::table)
            settings.setObject(description.key, wrong);
        agentSends(Message(message::savedPrefs, settings));
        EXPECT_EQ(pane.launchAtLogin.state(), wrong.boolValue() ? 1 : 0);
        EXPECT_EQ(pane.shutdownDelayText.integerValue(), wrong.integerValue());
        const auto* text = wrong.as<std::string>();
        EXPECT_EQ(pane.email.stringValue(), text ? *text : "");
    }
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(GeneralSettings, theTwoRulesOfTheHidingControlsDiffer) {
    loadWithAgent({{"ShutdownMessage", true}});
    EXPECT_TRUE(pane.hideShutdownMessage.isEnabled());
    pane.showShutdownMessage.setAction("toggleShowShutdownMessage:");
    struct Case {
        int hide;
        int before;
        bool hideEnabled;
        bool delayEnabled;
        bool boxEnabled;
    };
    for (const Case& c : {Case{0, 0, false, true, true}, Case{1, 0, true, false, true},
                          Case{1, 1, false, true, false}, Case{0, 1, false, true, false}}) {
        pane.hideShutdownMessageButton.setState(c.hide);
        pane.showShutdownMessage.setState(c.before);
        pane.showShutdownMessage.performClick();
        EXPECT_EQ(pane.hideShutdownMessage.isEnabled(), c.hideEnabled);
        EXPECT_EQ(pane.shutdownDelayText.isEnabled(), c.delayEnabled);
        EXPECT_EQ(pane.hideShutdownMessageButton.isEnabled(), c.boxEnabled);
    }
    pane.showConnectMessage.setAction("toggleShowConnectedMessage:");
    pane.showConnectMessage.performClick();
    EXPECT_TRUE(pane.hideConnectMessage.isEnabled());
}

TEST_F(GeneralSettings, theDelayActionSendsAnyTextInWholeSeconds) {
    loadWithAgent();
    pane.shutdownDelayText.setAction("setShutdownDelay:");
    struct Case {
        std::string typed;
        std::int64_t asSeconds;
        std::int64_t asMinutes;
    };
    const std::string digits(400, '7');
    const std::vector<Case> cases{{"90", 90, 5400},
                                  {"1.5", 1, 90},
                                  {"0.01", 0, 0},
                                  {"-1", -1, -60},
                                  {"-0.99", 0, -59},
                                  {"abc", 0, 0},
                                  {"", 0, 0},
                                  {"nan", 0, 0},
                                  {"1e30", 1, largest},
                                  {"-1e30", -1, std::numeric_limits<std::int64_t>::min()},
                                  {digits, largest, largest},
                                  {"0.35", 0, 21}, // 0.35F * 60 is 21.000000 in single precision
                                  {"16777217", 16777217, 1006632960}};
    for (const Case& c : cases) {
        pane.toggleMinSec.setState(buttonState::off);
        pane.shutdownDelayText.setStringValue(c.typed);
        pane.shutdownDelayText.sendAction();
        EXPECT_EQ(lastDelay(), c.asSeconds) << c.typed;
        pane.toggleMinSec.setState(buttonState::on);
        pane.shutdownDelayText.sendAction();
        EXPECT_EQ(lastDelay(), c.asMinutes) << c.typed;
        EXPECT_EQ(pane.shutdownDelayText.stringValue(), c.typed) << "the text stays";
    }
}

TEST_F(GeneralSettings, aDelayFieldTakesANumberInTheUsersNotationOrSaysWhyNot) {
    platform.decimalSeparator = ",";
    defaults.values["kZVShowMinutes"] = true;
    loadWithAgent({{"ShutdownDelay", 150}});
    TextField& field = pane.shutdownDelayText;
    field.setAction("setShutdownDelay:");
    EXPECT_EQ(field.stringValue(), "2,5");
    for (const auto& [typed, seconds] : std::vector<std::pair<std::string, std::int64_t>>{
             {"1,5", 90}, {" 2 ", 120}, {"0", 0}, {",5", 30}, {"+3,", 180}}) {
        enter(field, typed);
        EXPECT_EQ(lastDelay(), seconds) << typed;
        EXPECT_EQ(field.fault(), "");
    }
    for (const std::string typed : {"abc", "", " ", "-1", "-0", "1.5", "1.000", "1e3", "nan", ",",
                                    "1,5,5", "5 s", "\u0665"}) {
        enter(field, typed);
        EXPECT_EQ(field.stringValue(), typed) << "stays to be corrected";
        EXPECT_NE(field.fault().find("such as 1,5."), std::string::npos) << typed;
        field.userDidLeave();
        EXPECT_EQ(field.stringValue(), "+3,");
        EXPECT_NE(field.fault(), "");
        field.userDidEdit("4");
        EXPECT_EQ(field.fault(), "");
        field.userDidEdit("+3,");
        field.userDidLeave();
        EXPECT_TRUE(takeSent().empty()) << typed;
    }
    field.userDidEdit("7");
    field.setEnabled(false);
    field.userDidLeave();
    EXPECT_TRUE(takeSent().empty()) << "greyed in the middle of an edit";
}

TEST_F(GeneralSettings, aDelayShownInMinutesKeepsItsNumberUntilItIsEdited) {
    loadWithAgent();
    pane.shutdownDelayText.setAction("setShutdownDelay:");
    pane.toggleMinSec.setAction("toggleMinutesSeconds:");
    for (int saved = 0; saved <= 600; ++saved) {
        pane.toggleMinSec.setOn(true);
        agentSends(Message(message::savedPrefs, Dictionary{{"ShutdownDelay", saved}}));
        const float minutes = static_cast<float>(saved) / 60.0F;
        const auto seconds = static_cast<std::int64_t>(minutes * 60.0F);
        pane.shutdownDelayText.sendAction();
        EXPECT_EQ(lastDelay(), seconds);
        pane.toggleMinSec.performClick();
        EXPECT_EQ(pane.shutdownDelayText.integerValue(), seconds);
    }
    pane.toggleMinSec.setOn(true);
    agentSends(Message(message::savedPrefs, Dictionary{{"ShutdownDelay", 20}}));
    for (const std::string_view typed : {"0.3", "0.3333333"})
        pane.shutdownDelayText.userDidEdit(typed);
    pane.shutdownDelayText.userDidLeave();
    EXPECT_TRUE(takeSent().empty()) << "edited, and back";
    pane.toggleMinSec.performClick();
    EXPECT_EQ(pane.shutdownDelayText.stringValue(), "20");
}

TEST_F(GeneralSettings, aSavedDelayIsShownInTheUnitOfTheSwitch) {
    defaults.values["kZVShowMinutes"] = true;
    strings.translations["minutes"] = "Minuten";
    load();
    EXPECT_EQ(pane.toggleMinSec.state(), buttonState::on);
    EXPECT_EQ(pane.toggleMinSec.title(), "Minuten");
    struct Case {
        Value saved;
        std::string minutes;
        std::string seconds;
    };
    for (const Case& c :
         {Case{90, "1.5", "90"}, Case{100, "1.666667", "100"}, Case{0, "0", "0"},
          Case{"120", "2", "120"}, Case{1e300, "5.671372e+36", "9223372036854775807"},
          Case{Array{}, "0", "0"}}) {
        for (const int unit : {1, 0}) {
            pane.toggleMinSec.setState(unit);
            agentSends(Message(message::savedPrefs, Dictionary{{"ShutdownDelay", c.saved}}));
            EXPECT_EQ(pane.shutdownDelayText.stringValue(), unit == 1 ? c.minutes : c.seconds);
        }
    }
}

TEST_F(GeneralSettings, switchingTheUnitConvertsTheFieldLosesTheRemainderAndSendsNothing) {
    loadWithAgent({{"ShutdownDelay", 90}});
    pane.toggleMinSec.setAction("toggleMinutesSeconds:");
    pane.toggleMinSec.performClick();
    EXPECT_EQ(pane.shutdownDelayText.stringValue(), "1");
    EXPECT_EQ(pane.toggleMinSec.title(), "minutes");
    EXPECT_TRUE(defaults.values["kZVShowMinutes"]);
    pane.toggleMinSec.performClick();
    EXPECT_EQ(pane.shutdownDelayText.stringValue(), "60");
    EXPECT_EQ(pane.toggleMinSec.title(), "seconds");
    EXPECT_FALSE(defaults.values["kZVShowMinutes"]);
    struct Case {
        std::string text;
        std::string minutes;
        std::string seconds;
    };
    for (const Case& c :
         {Case{"abc", "0", "0"}, Case{"1.5", "0", "90"}, Case{"-119", "-1", "-7140"},
          Case{std::string(400, '9'), "153722875298185216", "9223372036854775807"}}) {
        for (const int before : {0, 1}) {
            pane.toggleMinSec.setState(before);
            pane.shutdownDelayText.setStringValue(c.text);
            pane.toggleMinSec.performClick();
            EXPECT_EQ(pane.shutdownDelayText.stringValue(), before == 0 ? c.minutes : c.seconds);
        }
    }
    EXPECT_TRUE(takeSent().empty());
}

TEST_F(GeneralSettings, theTestButtonStaysBusyUntilTheAgentHasFinished) {
    loadWithAgent();
    pane.testSettingsButton.setAction("testShutdown:");
    pane.testSettingsButton.performClick();
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{"ZVTestShutdown"});
    pane.performAction("toggleOnOff:", nullptr);
    pane.performAction("toggleOnOff:", nullptr);
    pane.setInterfaceEnabled(true);
    EXPECT_FALSE(pane.testSettingsButton.isEnabled());
    agentSends(message::testFinished);
    EXPECT_TRUE(pane.testSettingsButton.isEnabled());
    EXPECT_FALSE(pane.testing);

    pane.state = false;
    agentSends(message::testFinished);
    EXPECT_FALSE(pane.testSettingsButton.isEnabled());
    agentSends(Message(message::savedPrefs, Dictionary{{"Testing", true}}));
    EXPECT_TRUE(pane.testing);
    EXPECT_FALSE(pane.testSettingsButton.isEnabled());
    agentSends(message::savedPrefs);
    EXPECT_FALSE(pane.testing);
    EXPECT_TRUE(pane.testSettingsButton.isEnabled()) << "whatever the protection is";
}

} // namespace
} // namespace zarvil
