#include "BusHarness.h"

#include <QElapsedTimer>

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

TEST_F(Connection, aBurstOf100000EachWayIsNeitherLostNorReorderedEvenWhileConnecting) {
    DBusMessageCenter agent(agentOptions());
    const Recorder atAgent(agent, message::paneToAgent);
    ASSERT_TRUE(waitUntilConnected(agent));
    ASSERT_TRUE(QDBusConnection(*agent.connection()).registerService(bus::agentName));
    DBusMessageCenter pane(paneOptions());
    const Recorder atPane(pane);
    ASSERT_EQ(pane.connectionState(), ConnectionState::Connecting);
    constexpr int count = 100'000;
    for (int number = 0; number < count; ++number)
        pane.post(numbered(message::prefsChanged, number));
    ASSERT_TRUE(waitUntilConnected(pane));
    for (int number = 0; number < count; ++number)
        agent.post(numbered(message::stateChanged, number));
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
    states.resize(4);
    using enum ConnectionState;
    EXPECT_EQ(states, (std::vector{Connecting, Unavailable, Connecting, Unavailable}));
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
    ASSERT_TRUE(QDBusConnection(*agent.connection()).registerService(bus::agentName));
    pane.post(Message(message::prefsLoaded));
    agent.post(Message(message::testFinished));
    ASSERT_TRUE(recorder.waitForCount(2) && atAgent.waitForCount(1));
    EXPECT_EQ(recorder.received.back().name, message::testFinished);
    EXPECT_EQ(atAgent.received.front().name, message::prefsLoaded) << "the lost ping came back";
}

TEST_F(Connection, aBusThatStopsAnsweringHoldsUpNothingButTheEnd) {
    auto pane = std::make_unique<DBusMessageCenter>(paneOptions());
    const Recorder recorder(*pane);
    ASSERT_TRUE(waitUntilConnected(*pane));
    bus.freeze();
    QElapsedTimer time;
    time.start();
    for (int number = 0; number < 1000; ++number) {
        pane->post(numbered(message::ping, number));
        Subscription passing = pane->addObserver("ZVOther", [](const Message&) {});
    }
    pane.reset();
    // A second for the end; an answer that was waited for would take twenty-five.
    EXPECT_LT(time.elapsed(), 10'000);
    bus.resume();
}

} // namespace
} // namespace zarvil
