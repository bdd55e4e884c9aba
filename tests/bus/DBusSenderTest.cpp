#include "BusHarness.h"

namespace zarvil {
namespace {

using Sender = BusHarness;

const QVariantList noInfo{QVariantMap{}};

TEST_F(Sender, whoDoesNotOwnTheAgentsNameChangesNothing) {
    PaneCenter pane(bus);
    const Recorder recorder(pane.messages);
    ASSERT_TRUE(pane.waitUntilConnected());
    const QDBusConnection spoofer = peer();
    const QDBusConnection agent = peer(Owns::AgentName);

    const QString receiver = pane.bus.connection()->baseService();
    QDBusMessage toPaneAlone = QDBusMessage::createTargetedSignal(
        receiver, bus::path, bus::interface, QString::fromUtf8(message::quitPrefs));
    toPaneAlone << QVariantMap();
    QDBusMessage change = QDBusMessage::createTargetedSignal(
        receiver, "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameOwnerChanged");
    change << QString(bus::agentName) << agent.baseService() << spoofer.baseService();
    const QDBusMessage broadcast = signal(message::quitPrefs, noInfo);
    for (const QDBusMessage& message : {broadcast, toPaneAlone, change, broadcast})
        ASSERT_TRUE(spoofer.send(message));
    // A round trip, so that all of this has passed the bus before the agent speaks.
    ASSERT_TRUE(spoofer.interface()->isServiceRegistered(bus::agentName));
    ASSERT_TRUE(agent.send(signal(message::pingAnswer, noInfo)));

    ASSERT_TRUE(recorder.waitForCount(1));
    EXPECT_EQ(recorder.received, std::vector{Message(message::pingAnswer)});
}

QDBusMessage from(const QString& sender, const QString& member) {
    // Only a received message has a sender; this one is marked by its destination instead.
    return QDBusMessage::createMethodCall(sender, "/", "a.b", member);
}

/// What passes of a mixture of signals and reports about the owner, in the order of the bus.
struct GateCase {
    const char* name;
    const char* events; // "a1" signal 1 of connection a, "=a" answer, "ab" change from a to b
    const char* passed;
};

TEST(SenderGate, judgesByTheOwnerAtTheTimeOfSending) {
    const std::vector<GateCase> cases{
        {"held until the answer", "a1 b2 a3 =a a4", "134"},
        {"nobody owns it", "a1 =- a2", ""},
        {"a change tells the owner before it", "a1 b2 >ab a3 b4 =b b5", "145"},
        {"from nobody", "b1 >-b b2 =b", "2"},
        {"the name is given up", "=a a1 >a- a2", "1"},
        {"a restart", "=a a1 >a- >-b a2 b3", "13"},
    };
    for (const GateCase& one : cases) {
        std::string passed;
        SenderGate gate(
            [&](const QDBusMessage& signal) { passed += signal.member().toStdString(); });
        const auto connection = [](QChar letter) {
            return letter == '-' ? QString() : ":1." + QString(letter);
        };
        for (const QString& event : QString(one.events).split(' ')) {
            if (event[0] == '=')
                gate.ownerIs(connection(event[1]));
            else if (event[0] == '>')
                gate.ownerChanged(connection(event[1]), connection(event[2]));
            else
                gate.receive(from(connection(event[0]), event.mid(1)));
        }
        EXPECT_EQ(passed, one.passed) << one.name;
    }
}

} // namespace
} // namespace zarvil
