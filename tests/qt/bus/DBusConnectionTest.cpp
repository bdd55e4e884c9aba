#include "BusHarness.h"

#include <QLocalServer>

#include <array>

namespace zarvil {
namespace {

using Connection = BusHarness;

Message numbered(std::string_view name, int number) {
    return {name, Dictionary{{"number", number}}};
}

/// How many messages arrived in the order of their numbers before the first that did not.
std::size_t inOrder(const std::vector<Message>& received) {
    std::size_t count = 0;
    while (count < received.size() &&
           received[count].info().integerForKey("number") == static_cast<std::int64_t>(count))
        ++count;
    return count;
}

TEST_F(Connection, whatIsPostedBeforeItIsUpIsSentInOrderOnceItIs) {
    DBusMessageCenter agent(agentOptions());
    const Recorder recorder(agent, message::paneToAgent);
    ASSERT_TRUE(waitUntilConnected(agent));
    DBusMessageCenter pane(paneOptions());
    ASSERT_EQ(pane.connectionState(), ConnectionState::Connecting);
    constexpr int count = 100;
    for (int number = 0; number < count; ++number)
        pane.post(numbered(message::ping, number));
    ASSERT_TRUE(recorder.waitForCount(count));
    EXPECT_EQ(inOrder(recorder.received), count);
}

TEST_F(Connection, aBurstOf100000EachWayIsNeitherLostNorReordered) {
    DBusMessageCenter agent(agentOptions());
    DBusMessageCenter pane(paneOptions());
    const Recorder atAgent(agent, message::paneToAgent);
    const Recorder atPane(pane);
    ASSERT_TRUE(waitUntilConnected(agent) && waitUntilConnected(pane));
    QDBusConnection connection = *agent.connection();
    ASSERT_TRUE(connection.registerService(bus::agentName));
    constexpr int count = 100'000;
    for (int number = 0; number < count; ++number) {
        pane.post(numbered(message::prefsChanged, number));
        agent.post(numbered(message::stateChanged, number));
    }
    EXPECT_TRUE(atPane.received.empty()) << "a handler ran inside post";
    constexpr std::chrono::minutes burstLimit{4};
    ASSERT_TRUE(atAgent.waitForCount(count, burstLimit) && atPane.waitForCount(count, burstLimit));
    EXPECT_EQ(inOrder(atAgent.received), count);
    EXPECT_EQ(inOrder(atPane.received), count);
}

TEST_F(Connection, onlyWhatIsObservedIsDeliveredAndOnlyWhileItIs) {
    const QDBusConnection agent = peer(Owns::AgentName);
    DBusMessageCenter pane(paneOptions());
    const Recorder others(pane, std::array{message::testFinished});
    int first = 0;
    int second = 0;
    Subscription one = pane.addObserver(message::pingAnswer, [&](const Message&) { ++first; });
    Subscription two = pane.addObserver(message::pingAnswer, [&](const Message&) { ++second; });
    ASSERT_TRUE(waitUntilConnected(pane));
    const auto speak = [&](std::size_t round) {
        EXPECT_TRUE(agent.send(signal(message::pingAnswer)));
        EXPECT_TRUE(agent.send(signal(message::testFinished)));
        return others.waitForCount(round);
    };
    ASSERT_TRUE(speak(1));
    one.cancel();
    ASSERT_TRUE(speak(2));
    two.cancel();
    ASSERT_TRUE(speak(3));
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 2);
    const Subscription again =
        pane.addObserver(message::pingAnswer, [&](const Message&) { ++first; });
    ASSERT_TRUE(isHeardByTheBus(pane) && speak(4));
    EXPECT_EQ(first, 2);
}

TEST_F(Connection, withoutABusItSaysSoAndComesUpWithTheBus) {
    bus.stop();
    DBusMessageCenter pane(paneOptions());
    std::vector<ConnectionState> states;
    const Subscription watching =
        pane.observeConnectionState([&](ConnectionState state) { states.push_back(state); });
    pane.post(Message(message::prefsLoaded));
    ASSERT_TRUE(waitFor([&] { return states.size() >= 4; }));
    EXPECT_EQ(states[0], ConnectionState::Connecting);
    EXPECT_EQ(states[1], ConnectionState::Unavailable);
    EXPECT_EQ(states[2], ConnectionState::Connecting);
    EXPECT_EQ(states[3], ConnectionState::Unavailable);
    EXPECT_FALSE(pane.connectionError().isEmpty());
    EXPECT_FALSE(pane.connection());
    pane.post(Message(message::ping));

    bus.start();
    ASSERT_TRUE(waitUntilConnected(pane));
    EXPECT_TRUE(pane.connectionError().isEmpty());
}

TEST_F(Connection, survivesABusThatDiesAndFindsTheNextOne) {
    DBusMessageCenter pane(paneOptions());
    const Recorder recorder(pane);
    ASSERT_TRUE(waitUntilConnected(pane));
    {
        const QDBusConnection agent = peer(Owns::AgentName);
        ASSERT_TRUE(agent.send(signal(message::pingAnswer)));
        ASSERT_TRUE(recorder.waitForCount(1));
    }
    bus.stop();
    ASSERT_TRUE(waitFor([&] { return pane.connectionState() == ConnectionState::Unavailable; }));
    pane.post(Message(message::ping));
    bus.start();
    ASSERT_TRUE(waitUntilConnected(pane));

    DBusMessageCenter agent(agentOptions());
    const Recorder atAgent(agent, message::paneToAgent);
    ASSERT_TRUE(waitUntilConnected(agent));
    QDBusConnection connection = *agent.connection();
    ASSERT_TRUE(connection.registerService(bus::agentName));
    pane.post(Message(message::prefsLoaded));
    agent.post(Message(message::testFinished));
    ASSERT_TRUE(recorder.waitForCount(2) && atAgent.waitForCount(1));
    EXPECT_EQ(recorder.received.back().name, message::testFinished);
    EXPECT_EQ(atAgent.received.front().name, message::prefsLoaded) << "the lost ping came back";
}

TEST_F(Connection, aBusThatNeverGreetsBlocksNothing) {
    QTemporaryDir folder;
    auto silent = std::make_unique<QLocalServer>();
    ASSERT_TRUE(silent->listen(folder.filePath("silent")));
    DBusOptions options = paneOptions();
    options.address = "unix:path=" + folder.filePath("silent");
    DBusMessageCenter pane(options);
    ASSERT_TRUE(waitFor([&] { return silent->hasPendingConnections(); }));
    pane.post(Message(message::ping));
    EXPECT_EQ(pane.connectionState(), ConnectionState::Connecting);
    silent.reset();
    EXPECT_TRUE(waitFor([&] { return pane.connectionState() == ConnectionState::Unavailable; }));
}

TEST_F(Connection, whatWasPostedLastIsSentBeforeTheCenterGoes) {
    DBusMessageCenter agent(agentOptions());
    const Recorder recorder(agent, message::paneToAgent);
    ASSERT_TRUE(waitUntilConnected(agent));
    auto pane = std::make_unique<DBusMessageCenter>(paneOptions());
    Subscription outliving = pane->addObserver(message::pingAnswer, [](const Message&) {});
    ASSERT_TRUE(waitUntilConnected(*pane));
    pane->post(Message(message::quit));
    pane.reset();
    outliving.cancel();
    EXPECT_TRUE(recorder.waitForCount(1));
}

} // namespace
} // namespace zarvil
