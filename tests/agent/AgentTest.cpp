#include "AgentHarness.h"

namespace zarvil::agent {
namespace {

using AgentAnswers = AgentHarness;

std::vector<std::string> namesOf(const std::vector<Message>& messages) {
    std::vector<std::string> names;
    for (const Message& message : messages)
        names.push_back(message.name);
    return names;
}

TEST_F(AgentAnswers, sendsSettingsThenDevicesThenItsState) {
    const Dictionary saved = deviceRecord("UPS", "Maker", "1");
    agent->deviceIsThere(saved);
    agent->saveByItself(saved);
    bus.deliver();
    const auto answers = answersTo(message::prefsLoaded);
    ASSERT_EQ(namesOf(answers),
              (std::vector<std::string>{"ZVSavedPrefs", "ZVAllSavedDevices",
                                        "ZVAllConnectedDevices", "ZVAllDevices", "ZVState2"}));
    for (const std::size_t list : {1U, 2U, 3U})
        EXPECT_EQ(*answers.at(list).info().arrayForKey("devices"), Array{saved}) << list;
}

TEST_F(AgentAnswers, keepsItsStateOverARestartAndEchoesNoCommand) {
    EXPECT_FALSE(answersTo(message::prefsLoaded).back().info().boolForKey("state"));
    EXPECT_TRUE(answersTo({message::setState, Dictionary{{"state", true}}}).empty());
    restart();
    EXPECT_TRUE(answersTo(message::prefsLoaded).back().info().boolForKey("state"));
}

TEST_F(AgentAnswers, answersPingsUnlessMuted) {
    EXPECT_EQ(answersTo(message::ping), std::vector{Message(message::pingAnswer)});
    agent->setMuted(true);
    EXPECT_TRUE(answersTo(message::ping).empty());
}

TEST_F(AgentAnswers, aTestRunsOnceAndIsReportedWhileItRuns) {
    agent->setTestDuration(std::chrono::milliseconds(5));
    answersTo(message::testShutdown);
    answersTo(message::testShutdown);
    EXPECT_TRUE(reported().boolForKey(setting::testing));
    sent.clear();
    ASSERT_TRUE(waitFor([&] {
        bus.deliver();
        return !sent.empty();
    }));
    EXPECT_EQ(namesOf(sent), std::vector<std::string>{"ZVTestFinished"});
    EXPECT_FALSE(reported().boolForKey(setting::testing));
    agent.reset();
}

TEST_F(AgentAnswers, savedDevicesKeepEveryKeyOverARestart) {
    Dictionary device = deviceRecord("Gerät \x01 電源", "a\r\nb", "<&\"'>]]>");
    device.setObject("Further",
                     Dictionary{{"list", Array{1, 2.5, true, ""}}, {"control \x02 key", Array{}}});
    const Dictionary twin = deviceRecord("Gerät \x01 電源", "a\r\nb", "<&\"'>]]>");
    answersTo({message::addedSaveItem, Dictionary{{"device", device}}});
    answersTo({message::addedSaveItem, Dictionary{{"device", twin}}});
    restart();
    EXPECT_EQ(reportedDevices(message::allSavedDevices), Array{device});
    answersTo({message::saveItemRemoved, Dictionary{{"device", twin}}});
    restart();
    EXPECT_TRUE(reportedDevices(message::allSavedDevices).empty());
}

TEST_F(AgentAnswers, judgesAPushoverCheckByFormOrAsTold) {
    const std::string user(30, 'a');
    const std::vector<std::pair<Dictionary, int>> cases{
        {{{"userId", user}}, 0},
        {{{"userId", user}, {"deviceId", "my_phone-2"}}, 0},
        {{{"userId", user}, {"deviceId", std::string(26, 'x')}}, 2},
        {{{"userId", user}, {"deviceId", "my phone"}}, 2},
        {{{"userId", user + "a"}}, 2},
        {{{"userId", user.substr(1)}}, 2},
        {{{"userId", 7}}, 2},
        {{}, 2},
    };
    for (const auto& [request, code] : cases) {
        const auto answers = answersTo({message::validatePushover, request});
        ASSERT_EQ(answers.size(), 1U);
        EXPECT_EQ(answers[0].info().integerForKey("code"), code);
    }
    agent->setVerdict(7);
    EXPECT_EQ(answersTo(message::validatePushover).at(0).info().integerForKey("code"), 7);
}

TEST_F(AgentAnswers, lateAnswersKeepTheirOrderWhenTheLatenessChanges) {
    agent->setLateness(std::chrono::milliseconds(30));
    EXPECT_TRUE(answersTo(message::ping).empty());
    agent->setLateness(std::chrono::milliseconds(0));
    EXPECT_TRUE(answersTo(message::validatePushover).empty());
    ASSERT_TRUE(waitFor([&] {
        bus.deliver();
        return sent.size() >= 2;
    }));
    EXPECT_EQ(namesOf(sent), (std::vector<std::string>{"ZVPingTest", "ZVPushValidationFinished"}));
}

TEST_F(AgentAnswers, aLineBreakInANameMakesNoLineOfTheLog) {
    agent->deviceAppeared(deviceRecord("x\n2000-01-01 Quit", "", ""));
    EXPECT_EQ(logText().count('\n'), 1);
}

TEST_F(AgentAnswers, survivesMessagesWithoutTheirPayload) {
    const Array odd{1, "x", Array{}};
    for (const std::string_view name : message::paneToAgent) {
        answersTo(name);
        answersTo({name, Dictionary{{"device", "x"}, {"prefKey", odd}, {"state", odd}}});
    }
    EXPECT_TRUE(reportedDevices(message::allSavedDevices).empty());
}

} // namespace
} // namespace zarvil::agent
