#include "BusHarness.h"
#include "bus/BusProbe.h"

#include <QElapsedTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>

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
    AgentCenter agent(bus);
    const Recorder atAgent(agent.messages, message::paneToAgent);
    ASSERT_TRUE(agent.waitUntilConnected());
    ASSERT_TRUE(QDBusConnection(*agent.bus.connection()).registerService(bus::agentName));
    PaneCenter pane(bus);
    const Recorder atPane(pane.messages);
    ASSERT_EQ(pane.bus.state(), BusState::Connecting);
    constexpr int count = 100'000;
    for (int number = 0; number < count; ++number)
        pane.messages.post(numbered(message::prefsChanged, number));
    ASSERT_TRUE(pane.waitUntilConnected());
    for (int number = 0; number < count; ++number)
        agent.messages.post(numbered(message::stateChanged, number));
    EXPECT_TRUE(atPane.received.empty()) << "a handler ran inside post";
    constexpr std::chrono::minutes burstLimit{4};
    ASSERT_TRUE(atAgent.waitForCount(count, burstLimit) && atPane.waitForCount(count, burstLimit));
    EXPECT_EQ(inOrder(atAgent.received), count);
    EXPECT_EQ(inOrder(atPane.received), count);
}

TEST_F(Connection, onlyWhatIsObservedIsDeliveredAndOnlyWhileItIs) {
    const QDBusConnection agent = peer(Owns::AgentName);
    PaneCenter pane(bus);
    const Recorder others(pane.messages, std::array{message::testFinished});
    int first = 0;
    int second = 0;
    const auto counting = [&](int& count) {
        return pane.messages.addObserver(message::pingAnswer, [&](const Message&) { ++count; });
    };
    Subscription one = counting(first);
    Subscription two = counting(second);
    ASSERT_TRUE(pane.waitUntilConnected());
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
    const Subscription again = counting(first);
    ASSERT_TRUE(pane.isHeardByTheBus() && speak(4));
    EXPECT_EQ(first, 2);
}

TEST_F(Connection, comesUpWithTheBusAndAgainWithTheNextOne) {
    bus.stop();
    std::atomic<int> joined = 0;
    BusOptions options = bus.options();
    options.join = [&](const QDBusConnection&) { ++joined; };
    BusConnection connection(options);
    DBusMessageCenter pane(connection, bus::agentName);
    const Recorder recorder(pane);
    std::string links;
    const Subscription watching =
        pane.observeLink([&](LinkEvent event) { links += "ud+"[static_cast<int>(event)]; });
    EXPECT_EQ(links, "u") << "nothing has failed yet";
    pane.post(Message(message::prefsLoaded));
    ASSERT_TRUE(waitFor([&] { return links == "ud"; }));
    EXPECT_FALSE(connection.error().isEmpty());
    EXPECT_FALSE(connection.connection());

    for (std::size_t round = 1; round <= 2; ++round) {
        pane.post(Message(message::ping));
        bus.start();
        ASSERT_TRUE(waitFor([&] { return links.ends_with('u'); }));
        EXPECT_EQ(joined, static_cast<int>(round)) << "the process's name is taken again";
        const QDBusConnection agent = peer(Owns::AgentName);
        ASSERT_TRUE(waitFor([&] { return links.ends_with('+'); })) << "an agent is a new one";
        ASSERT_TRUE(agent.send(signal(message::pingAnswer)));
        ASSERT_TRUE(recorder.waitForCount(round));
        bus.stop();
        ASSERT_TRUE(waitFor([&] { return links.ends_with('d'); }));
    }
    EXPECT_EQ(links, "udu+du+d");
}

TEST_F(Connection, triesAgainAfterWaitsThatDouble) {
    bus.stop();
    BusOptions options = bus.options();
    options.firstRetry = std::chrono::milliseconds(2);
    QElapsedTimer time;
    time.start();
    BusConnection connection(options);
    int failures = 0;
    const Subscription watching = connection.observe(
        [&](BusState state) { failures += state == BusState::Unavailable ? 1 : 0; });
    ASSERT_TRUE(waitFor([&] { return failures == 9; }));
    EXPECT_GE(time.elapsed(), 510) << "2 + 4 + ... + 256";
    EXPECT_LT(time.elapsed(), 6560) << "three times as long each";
}

TEST_F(Connection, whatWasPostedWithoutABusDoesNotComeBack) {
    PaneCenter pane(bus);
    ASSERT_TRUE(pane.waitUntilConnected());
    bus.stop();
    ASSERT_TRUE(waitFor([&] { return pane.bus.state() == BusState::Unavailable; }));
    pane.messages.post(Message(message::ping));
    bus.start();
    AgentCenter agent(bus);
    const Recorder atAgent(agent.messages, message::paneToAgent);
    ASSERT_TRUE(agent.waitUntilConnected() && pane.waitUntilConnected());
    pane.messages.post(Message(message::prefsLoaded));
    ASSERT_TRUE(atAgent.waitForCount(1));
    EXPECT_EQ(atAgent.received.front().name, message::prefsLoaded);
}

TEST_F(Connection, anotherOwnerOfTheAgentsNameIsANewPeer) {
    auto first = peer(Owns::AgentName);
    PaneCenter pane(bus);
    const Recorder recorder(pane.messages);
    std::size_t newPeers = 0;
    const Subscription watching = pane.messages.observeLink(
        [&](LinkEvent event) { newPeers += event == LinkEvent::NewPeer ? 1 : 0; });
    ASSERT_TRUE(pane.waitUntilConnected());
    ASSERT_TRUE(first.send(signal(message::pingAnswer)));
    ASSERT_TRUE(recorder.waitForCount(1));
    EXPECT_EQ(newPeers, 0U) << "what the pane posted at its start has reached this one";
    ASSERT_TRUE(first.unregisterService(bus::agentName));
    ASSERT_TRUE(peer(Owns::AgentName).send(signal(message::pingAnswer)));
    ASSERT_TRUE(recorder.waitForCount(2));
    EXPECT_EQ(newPeers, 1U);
}

/// Notes what a center tells of, by letters.
class Diary {
public:
    explicit Diary(MessageCenter& center) {
        for (const std::string_view name :
             {message::pingAnswer, message::allDevices, message::stateChanged})
            subscriptions_.push_back(center.addObserver(name, [this](const Message& message) {
                const Array* devices = message.info().arrayForKey("devices");
                listed += devices ? devices->size() : 0;
                told += message.name.substr(2, 1);
            }));
        subscriptions_.push_back(center.observeLink(
            [this](LinkEvent event) { told += "ud+"[static_cast<int>(event)]; }));
    }

    std::string told;
    std::size_t listed = 0;

private:
    std::vector<Subscription> subscriptions_;
};

/// Reading so many takes a multiple of what one turn of the event loop may.
constexpr int manyDevices = 30'000;

QVariantList longPayload() {
    const QVariantMap device{{"DeviceName", "Name"}, {"DeviceVendor", "Vendor"}};
    return {QVariantMap{{"devices", QVariantList(manyDevices, QVariant(device))}}};
}

TEST_F(Connection, aLongMessageLeavesOthersTheirTurnsAndComesWholeAndInOrder) {
    auto agent = peer(Owns::AgentName);
    PaneCenter pane(bus);
    ASSERT_TRUE(pane.waitUntilConnected());
    const Diary diary(pane.messages);
    int turns = 0;
    QTimer everyTurn;
    QObject::connect(&everyTurn, &QTimer::timeout,
                     [&] { turns += pane.messages.isBehind() ? 1 : 0; });
    everyTurn.start();
    ASSERT_TRUE(agent.send(signal(message::pingAnswer)) &&
                agent.send(signal(message::allDevices, longPayload())));
    ASSERT_TRUE(agent.send(signal(message::stateChanged)));
    ASSERT_TRUE(agent.unregisterService(bus::agentName));
    ASSERT_TRUE(peer(Owns::AgentName).send(signal(message::pingAnswer)));
    ASSERT_TRUE(waitFor([&] { return std::ranges::count(diary.told, 'P') == 2; }));
    EXPECT_EQ(diary.told.substr(diary.told.find('P')), "PAS+P");
    EXPECT_EQ(diary.listed, static_cast<std::size_t>(manyDevices));
    EXPECT_GE(turns, 2);
    EXPECT_FALSE(pane.messages.isBehind());
}

TEST_F(Connection, aLongMessageEndsWithItsConnection) {
    PaneCenter pane(bus);
    ASSERT_TRUE(pane.waitUntilConnected());
    const Diary diary(pane.messages);
    const auto agent = peer(Owns::AgentName);
    ASSERT_TRUE(agent.send(signal(message::allDevices, longPayload())) &&
                agent.send(signal(message::stateChanged)));
    ASSERT_TRUE(waitFor([&] { return pane.messages.isBehind(); }));
    bus.stop();
    // Nothing more is read before the bus library's thread has learnt of it.
    for (const QDeadlineTimer limit(waitLimit);
         pane.bus.connection()->isConnected() && !limit.hasExpired();)
        std::this_thread::yield();
    ASSERT_TRUE(waitFor([&] { return diary.told.ends_with('d'); }));
    EXPECT_FALSE(pane.messages.isBehind());
    bus.start();
    ASSERT_TRUE(pane.waitUntilConnected());
    ASSERT_TRUE(peer(Owns::AgentName).send(signal(message::pingAnswer)));
    ASSERT_TRUE(waitFor([&] { return diary.told.ends_with('P'); }));
    EXPECT_EQ(diary.told.substr(diary.told.find('d')), "du+P");
}

TEST_F(Connection, aBusThatStopsAnsweringHoldsUpNothingButTheEnd) {
    auto pane = std::make_unique<PaneCenter>(bus);
    ASSERT_TRUE(pane->waitUntilConnected());
    bus.freeze();
    QElapsedTimer time;
    time.start();
    for (int number = 0; number < 1000; ++number) {
        pane->messages.post(numbered(message::ping, number));
        Subscription passing = pane->messages.addObserver("ZVOther", [](const Message&) {});
    }
    BusConnection late(bus.options());
    EXPECT_FALSE(late.wait(std::chrono::milliseconds(10)));
    ASSERT_TRUE(waitFor([&] { return late.state() == BusState::Unavailable; }));
    pane.reset();
    // A second for the end; an answer that was waited for would take twenty-five.
    EXPECT_LT(time.elapsed(), 10'000);
    bus.resume();
    ASSERT_TRUE(waitFor([&] { return late.state() == BusState::Connected; }));
    EXPECT_FALSE(BusConnection::anyHangs());
}

TEST_F(Connection, onDemandIsMadeWhenAskedForAndOnlyForThoseWhoLive) {
    BusOptions options = bus.options();
    options.firstRetry.reset();
    auto connection = std::make_unique<BusConnection>(options);
    QObject alive;
    std::string answers;
    const auto ask = [&](QObject& context) {
        connection->whenReady(&context, [&](const QDBusConnection& made) {
            answers += made.isConnected() ? 'y' : 'n';
        });
    };
    const auto answered = [&](std::size_t count) {
        return waitFor([&] { return answers.size() >= count; });
    };
    {
        QObject gone;
        ask(gone);
    }
    ask(alive);
    EXPECT_EQ(answers, "");
    ASSERT_TRUE(answered(1));
    bus.stop();
    ASSERT_TRUE(waitFor([&] { return connection->state() == BusState::Unavailable; }));
    ask(alive);
    ASSERT_TRUE(answered(2));
    bus.start();
    ask(alive);
    ASSERT_TRUE(answered(3));
    connection->whenReady(&alive, [&](const QDBusConnection&) {
        answers += '!';
        connection.reset(); // from within its own call
    });
    ASSERT_TRUE(answered(4));
    EXPECT_EQ(answers, "yny!");
}

TEST_F(Connection, anAnswerLeavesTheSharedLastErrorAlone) {
    const QDBusConnection connection = peer();
    EXPECT_EQ(answer(connection, busCall("NoSuchMethod"), 1000).type(), QDBusMessage::ErrorMessage);
    EXPECT_FALSE(connection.lastError().isValid());
}

/// For tools/check-threads, which runs it and fails unless the sanitizer reports it.
TEST_F(Connection, DISABLED_aRaceIsSeen) {
    std::vector<int> written(100);
    std::atomic<bool> isWritten = false;
    BusOptions options = bus.options();
    options.join = [&](const QDBusConnection&) {
        written.assign(written.size(), 1);
        isWritten.store(true, std::memory_order_relaxed);
    };
    const BusConnection connection(options);
    while (!isWritten.load(std::memory_order_relaxed))
        std::this_thread::yield();
    EXPECT_EQ(written, std::vector<int>(100, 1));
}

TEST(BusProbe, onlySilenceCountsAsHanging) {
    const PrivateBus healthy;
    PrivateBus hung;
    hung.freeze();
    constexpr std::chrono::milliseconds limit{500};
    for (const QByteArray& address :
         {healthy.address().toUtf8(), healthy.address().toUtf8() + ";unix:path=/nowhere",
          QByteArray("unix:path=/nonexistent/bus"), QByteArray("tcp:host=localhost"),
          QByteArray("unix:path=" + QByteArray(300, 'x')), QByteArray()})
        EXPECT_TRUE(busAnswers(address, limit)) << address.toStdString();
    EXPECT_FALSE(busAnswers(hung.address().toUtf8(), limit));
    EXPECT_FALSE(busAnswers(hung.address().toUtf8() + ",guid=00", limit));
}

} // namespace
} // namespace zarvil
