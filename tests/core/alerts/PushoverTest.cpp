#include "PaneHarness.h"
#include "protocol/Settings.h"

namespace zarvil {
namespace {

constexpr Color green{0.1, 0.7, 0.1, 1};
constexpr Color red{1.0, 0.1, 0.1, 1};

class Pushover : public PaneHarness {
protected:
    void start(const Dictionary& settings = {{"UsePushover", true}, {"PushUserId", "u1"}}) {
        loadWithAgent(settings);
        pane.usePushover.setAction("usePushoverAction:");
        pane.pushValidate.setAction("validatePushover:");
        pane.pushUserName.setAction("setUserId:");
        pane.pushDeviceName.setAction("setDeviceId:");
        fades_.clear();
        watch_ = pane.pushBox.alphaProperty().observe(
            [this](double alphaValue, Transition how) { fades_.emplace_back(alphaValue, how); });
        fades_.clear();
    }
    void answer(const Dictionary& info) { agentSends({message::pushValidationFinished, info}); }
    /// User field, device field, button.
    std::array<bool, 3> enabled() const {
        return {pane.pushUserName.isEnabled(), pane.pushDeviceName.isEnabled(),
                pane.pushValidate.isEnabled()};
    }

    using Enabled = std::array<bool, 3>;
    using Messages = std::vector<Message>;
    const Messages reset{settingChange("PushUserId", ""), settingChange("PushDeviceId", "")};
    std::vector<std::pair<double, Transition>> fades_;

private:
    Subscription watch_;
};

TEST_F(Pushover, theCheckStoresTheIdsAndAsksWithFourEntriesOrFive) {
    start();
    const Dictionary four{{"userId", "user"},
                          {"messageTitle", "test"},
                          {"messageText", "somemessage"},
                          {"validate", true}};
    Dictionary five = four;
    five.setObject("deviceId", "phone");
    pane.pushUserName.setStringValue("user");
    pane.pushValidate.performClick();
    EXPECT_EQ(takeSent(),
              (Messages{settingChange("PushUserId", "user"), {message::validatePushover, four}}));
    answer({{"code", 0}});
    pane.pushDeviceName.setStringValue("phone");
    pane.pushValidate.performClick();
    EXPECT_EQ(takeSent(), (Messages{settingChange("PushUserId", "user"),
                                    settingChange("PushDeviceId", "phone"),
                                    {message::validatePushover, five}}));
}

TEST_F(Pushover, aCheckGreysTheControlsUntilTheVerdict) {
    start();
    pane.pushValidate.performClick();
    EXPECT_EQ(enabled(), (Enabled{false, false, false}));
    EXPECT_TRUE(pane.pushIndicator.isAnimating());
    pane.usePushover.performClick();
    answer({{"code", 0}});
    EXPECT_EQ(enabled(), (Enabled{true, true, true})) << "although it was switched off meanwhile";
    EXPECT_FALSE(pane.pushIndicator.isAnimating());
    EXPECT_EQ(fades_,
              (std::vector<std::pair<double, Transition>>{{alpha::dimmed, Transition::Animated},
                                                          {alpha::active, Transition::Animated}}));
}

TEST_F(Pushover, eachResultHasItsTextColorAndEffectOnTheStoredIds) {
    start();
    struct Case {
        const char* description;
        Dictionary info;
        const char* text;
        Color color;
        bool resets;
    };
    const auto* valid = "Settings are valid!";
    const auto* timeout = "Connection timeout! Check your Internet connection!";
    const auto* invalid = "Invalid settings! Check your User ID and Device ID(if any)";
    const auto* unknown = "Unknow error!";
    const std::vector<Case> cases{
        {"valid", {{"code", 0}}, valid, green, false},
        {"absent", {}, valid, green, false},
        {"time-out", {{"code", 1}}, timeout, red, false},
        {"rejected", {{"code", 2}}, invalid, red, true},
        {"unknown", {{"code", 7}}, unknown, red, true},
        {"negative", {{"code", -1}}, unknown, red, true},
        {"no bits that an int keeps", {{"code", std::int64_t{1} << 32}}, unknown, red, true},
        {"huge", {{"code", 1e300}}, unknown, red, true},
        {"digits", {{"code", " 1"}}, timeout, red, false},
        {"a word reads as 0", {{"code", "seven"}}, valid, green, false},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.description);
        pane.pushValidationStatus.setHidden(true);
        answer(one.info);
        const AttributedString shown = pane.pushValidationStatus.attributedStringValue();
        ASSERT_TRUE(shown.attributesAt(0));
        EXPECT_EQ(shown.text(), one.text);
        EXPECT_EQ(shown.attributesAt(0)->foregroundColor, one.color);
        EXPECT_EQ(shown.attributesAt(shown.text().size() - 1)->alignment, TextAlignment::Centered);
        EXPECT_FALSE(pane.pushValidationStatus.isHidden());
        EXPECT_EQ(takeSent(), one.resets ? reset : Messages{});
        EXPECT_EQ(pane.pushUserName.stringValue(), "u1") << "the field keeps its text";
    }
}

TEST_F(Pushover, withoutAUserIdTheVerdictComesWithoutAsking) {
    start();
    pane.pushUserName.setStringValue("");
    pane.validatePushover(nullptr);
    EXPECT_EQ(takeSent(), reset);
    EXPECT_EQ(pane.pushValidationStatus.stringValue(),
              "Invalid settings! Check your User ID and Device ID(if any)");
    EXPECT_FALSE(pane.pushIndicator.isAnimating());
}

TEST_F(Pushover, switchingOnEnablesTheCheckOnlyWithAUserId) {
    start({});
    EXPECT_EQ(enabled(), (Enabled{false, false, false}));
    pane.usePushover.performClick();
    EXPECT_EQ(enabled(), (Enabled{true, true, false}));
    pane.usePushover.performClick();
    EXPECT_EQ(enabled(), (Enabled{false, false, false}));
    pane.pushUserName.setStringValue("u");
    pane.usePushover.performClick();
    EXPECT_EQ(enabled(), (Enabled{true, true, true}));
    EXPECT_EQ(takeSent(),
              (Messages{settingChange("UsePushover", true), settingChange("UsePushover", false),
                        settingChange("UsePushover", true)}));
    EXPECT_EQ(fades_.size(), 3U);
    EXPECT_EQ(fades_.back(), std::pair(alpha::active, Transition::Animated));
}

TEST_F(Pushover, emptyingAFieldSendsNothing) {
    start();
    for (TextField* field : {&pane.pushUserName, &pane.pushDeviceName}) {
        enter(*field, "id");
        enter(*field, "");
    }
    EXPECT_EQ(takeSent(),
              (Messages{settingChange("PushUserId", "id"), settingChange("PushDeviceId", "id")}));
}

TEST_F(Pushover, savedSettingsEnableTheCheckByThePresenceOfAnId) {
    load();
    struct Case {
        Dictionary settings;
        Enabled enabled;
        double alphaValue;
    };
    const std::vector<Case> cases{
        {{{"UsePushover", true}, {"PushUserId", ""}}, {true, true, true}, alpha::active},
        {{{"UsePushover", true}}, {true, true, false}, alpha::active},
        {{{"PushUserId", "u"}}, {false, false, false}, alpha::dimmed},
        {{{"UsePushover", "YES"}, {"PushUserId", "u"}}, {true, true, true}, alpha::active},
    };
    for (const Case& one : cases) {
        agentSends({message::savedPrefs, one.settings});
        EXPECT_EQ(enabled(), one.enabled);
        EXPECT_DOUBLE_EQ(pane.pushBox.alphaValue(), one.alphaValue);
    }
}

} // namespace
} // namespace zarvil
