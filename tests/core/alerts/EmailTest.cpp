#include "PaneHarness.h"
#include "protocol/Settings.h"

#include <random>
#include <regex>

namespace zarvil {
namespace {

using Email = PaneHarness;

TEST_F(Email, anAddressIsSentExactlyWhenItPassesTheRule) {
    loadWithAgent();
    struct Case {
        std::string address;
        bool sent;
    };
    const std::vector<Case> cases{
        {"USER@HOST.COM", true},
        {"a@..com", true},
        {"a@b.museum", false},
        {"a@b.com\n", false},
        {"", false},
        {"ä@b.com", false},
        {std::string("a\0@b.com", 8), false},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.address);
        EXPECT_EQ(Zarvil_Preferences::validEmail(one.address), one.sent);
        pane.email.setStringValue(one.address);
        pane.setUserEmail(&pane.email);
        EXPECT_EQ(takeSent(), one.sent
                                  ? std::vector<Message>{settingChange("EmailAddress", one.address)}
                                  : std::vector<Message>{});
        EXPECT_EQ(pane.email.stringValue(), one.address) << "the field keeps what was typed";
    }
}

TEST_F(Email, theRuleAgreesWithTheRegularExpression) {
    const std::regex pattern(R"([A-Z0-9a-z._%+-]+@[A-Za-z0-9.-]+\.[A-Za-z]{2,4})");
    const std::string alphabet = "aZ7.@-+_ %";
    std::mt19937 random(7);
    int matches = 0;
    for (int round = 0; round < 60000; ++round) {
        std::string text;
        const auto length = random() % 11;
        for (unsigned index = 0; index < length; ++index)
            text += alphabet[random() % alphabet.size()];
        // Half of them near misses: a good address with one character replaced.
        if (round % 2 == 0) {
            text = "a.b@c-d.e.co";
            text[random() % text.size()] = alphabet[random() % alphabet.size()];
        }
        const bool expected = std::regex_match(text, pattern);
        matches += expected ? 1 : 0;
        ASSERT_EQ(Zarvil_Preferences::validEmail(text), expected) << text;
    }
    EXPECT_GT(matches, 1000);
}

TEST_F(Email, anAddressOfTenMegabytesIsJudgedLikeAShortOne) {
    constexpr std::size_t size = 10'000'000;
    const std::string dots(size, '.');
    EXPECT_TRUE(Zarvil_Preferences::validEmail(std::string(size, 'a') + "@b.com"));
    EXPECT_TRUE(Zarvil_Preferences::validEmail("a@" + dots + "com"));
    EXPECT_FALSE(Zarvil_Preferences::validEmail("a@" + dots));
    EXPECT_FALSE(Zarvil_Preferences::validEmail("a@b." + std::string(size, 'c')));
    EXPECT_FALSE(Zarvil_Preferences::validEmail(std::string(size, '@')));
}

TEST_F(Email, savedSettingsTouchTheSwitchOnlyTogetherWithAnAddress) {
    load();
    struct Case {
        Dictionary settings;
        int state;
        const char* text;
    };
    const std::vector<Case> cases{
        {{{"EmailAddress", "a@b.com"}, {"UseEmailNotifi", true}}, buttonState::on, "a@b.com"},
        {{{"EmailAddress", ""}, {"UseEmailNotifi", false}}, buttonState::on, ""},
        {{{"UseEmailNotifi", false}}, buttonState::on, ""},
        {{{"EmailAddress", 12}, {"UseEmailNotifi", false}}, buttonState::on, ""},
        {{{"EmailAddress", "not valid"}}, buttonState::off, "not valid"},
    };
    for (const Case& one : cases) {
        agentSends({message::savedPrefs, one.settings});
        EXPECT_EQ(pane.sendEmail.state(), one.state) << one.text;
        EXPECT_EQ(pane.email.stringValue(), one.text);
    }
}

TEST_F(Email, absentSendersSendNothing) {
    loadWithAgent();
    for (const auto action : {"setUserEmail:", "useEmailNotifications:", "usePushoverAction:",
                              "setUserId:", "setDeviceId:"})
        pane.performAction(action, nullptr);
    EXPECT_EQ(takeSentNames(), std::vector<std::string>{});
}

} // namespace
} // namespace zarvil
