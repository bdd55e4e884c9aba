#include "BusHarness.h"

#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QPoint>

#include <limits>

namespace zarvil {
namespace {

using IntegersByText = QMap<QString, int>;
using TextsByPath = QMap<QDBusObjectPath, QString>;
using TextsByInteger = QMap<int, QString>;

/// Sends from a raw connection or from a center and gives what the pane received.
class Values : public BusHarness {
protected:
    Values() {
        qDBusRegisterMetaType<IntegersByText>();
        qDBusRegisterMetaType<TextsByPath>();
        qDBusRegisterMetaType<TextsByInteger>();
        EXPECT_TRUE(pane.waitUntilConnected());
    }

    Message received(const QVariantList& arguments) {
        recorder.received.clear();
        EXPECT_TRUE(raw.send(signal(message::savedPrefs, arguments)));
        EXPECT_TRUE(recorder.waitForCount(1));
        return recorder.received.at(0);
    }

    AgentCenter pane{bus};
    Recorder recorder{pane.messages};
    QDBusConnection raw = peer();
};

TEST_F(Values, arriveAsTheyWereSent) {
    using Limits = std::numeric_limits<std::int64_t>;
    const std::vector<Value> values{
        true,
        false,
        0,
        Limits::min(),
        Limits::max(),
        0.1,
        -0.0,
        1e308,
        std::numeric_limits<double>::infinity(),
        "",
        "Größe 電源 \u202e \u0301 \U0001F50C",
        "\x01\x7f",
        std::string(1U << 20U, 'x'),
        Data{},
        Data{std::byte{0}, std::byte{255}},
        Array{},
        Array{1, true, "x", Array{2.5, Dictionary{}}},
        Dictionary{},
        Dictionary{{"", 1}, {"a", Dictionary{{"b", Array{Data{std::byte{7}}}}}}}};
    AgentCenter agent(bus);
    ASSERT_TRUE(agent.waitUntilConnected());
    for (const Value& value : values)
        agent.messages.post({message::savedPrefs, Dictionary{{"value", value}}});
    ASSERT_TRUE(recorder.waitForCount(values.size()));
    for (std::size_t index = 0; index < values.size(); ++index) {
        const Value* arrived = recorder.received[index].info().objectForKey("value");
        ASSERT_TRUE(arrived) << index;
        EXPECT_EQ(*arrived, values[index]) << index;
        // Equality compares numbers across their kinds; the kind must arrive as well.
        EXPECT_EQ(arrived->storage().index(), values[index].storage().index()) << index;
    }
}

TEST_F(Values, ofEveryReadableTypeAreRead) {
    struct Case {
        QVariant sent;
        Value read;
    };
    const std::vector<Case> cases{
        {QVariant::fromValue(uchar{255}), 255},
        {QVariant::fromValue(short{-32768}), -32768},
        {QVariant::fromValue(ushort{65535}), 65535},
        {QVariant::fromValue(-5), -5},
        {QVariant::fromValue(4'000'000'000U), std::int64_t{4'000'000'000}},
        {QVariant::fromValue(qulonglong{7}), 7},
        {QVariant::fromValue(~qulonglong{0}), 18446744073709551615.0},
        {QVariant::fromValue(QDBusObjectPath("/a/b")), "/a/b"},
        {QVariant::fromValue(QDBusSignature("a{sv}")), "a{sv}"},
        {QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant("deep")))), "deep"},
        {QStringList{"a", "b"}, Array{"a", "b"}},
        {QVariant::fromValue(QList<int>{1, 2}), Array{1, 2}},
        {QVariant::fromValue(IntegersByText{{"k", 1}}), Dictionary{{"k", 1}}},
        {QVariant::fromValue(TextsByPath{{QDBusObjectPath("/k"), "v"}}), Dictionary{{"/k", "v"}}},
    };
    for (const Case& one : cases) {
        const Message message = received(QVariantList{QVariantMap{{"value", one.sent}}});
        const Value* read = message.info().objectForKey("value");
        ASSERT_TRUE(read) << one.sent.typeName();
        EXPECT_EQ(*read, one.read) << one.sent.typeName();
        EXPECT_EQ(read->storage().index(), one.read.storage().index()) << one.sent.typeName();
    }
}

TEST_F(Values, ofForeignTypesAreDroppedAlone) {
    QFile file("/dev/null");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::vector<QVariant> foreign{
        QPoint(1, 2), // a structure on the bus
        QVariant::fromValue(TextsByInteger{{1, "x"}}),
        QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())),
        QVariant::fromValue(QDBusVariant(QPoint(1, 2))),
    };
    for (const QVariant& bad : foreign) {
        const Message message = received({QVariantMap{
            {"bad", bad},
            {"good", 1},
            {"inner", QVariantMap{{"bad", bad}, {"good", QVariantList{bad, "x", bad}}}}}});
        EXPECT_EQ(message.info(),
                  (Dictionary{{"good", 1}, {"inner", Dictionary{{"good", Array{"x"}}}}}))
            << bad.typeName();
    }
}

TEST(NameOutcome, isOwnedOnlyByWhoGotItNow) {
    const auto call = QDBusMessage::createMethodCall("a.b", "/", "a.b", "c");
    const auto outcome = [&](uint code) { return nameOutcome(call.createReply(code)); };
    EXPECT_EQ(outcome(1), NameOutcome::Owned);
    EXPECT_EQ(outcome(2), NameOutcome::Refused); // queued, which was not asked for
    EXPECT_EQ(outcome(3), NameOutcome::Taken);
    EXPECT_EQ(outcome(4), NameOutcome::Owned);
    EXPECT_EQ(nameOutcome(call.createErrorReply("a.b.c", "d")), NameOutcome::Refused);
}

/// How many warnings there have been.
int warnings = 0;

TEST_F(Values, ofAWrongPayloadReadAsNone) {
    const auto former =
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& /*place*/,
                                  const QString& /*text*/) { warnings += type == QtWarningMsg; });
    for (const QVariantList& wrong : {QVariantList{}, QVariantList{QVariantMap{}},
                                      QVariantList{"text"}, QVariantList{QPoint(1, 2)}})
        EXPECT_EQ(received(wrong).userInfo, std::nullopt);
    EXPECT_EQ(received(QVariantList{QVariantMap{{"a", 1}}, "further"}).info(),
              (Dictionary{{"a", 1}}));
    qInstallMessageHandler(former);
    EXPECT_EQ(warnings, 3); // not for one that is missing or empty
}

/// A value within the given number of arrays or dictionaries.
Value nested(int levels, bool dictionaries, Value value) {
    for (int level = 0; level < levels; ++level)
        value = dictionaries ? Value(Dictionary{{"k", value}}) : Value(Array{value});
    return value;
}

TEST_F(Values, nestedDeeperThanTheBusAllowsAreCutThereAndTheConnectionStands) {
    AgentCenter agent(bus);
    ASSERT_TRUE(agent.waitUntilConnected());
    for (const bool dictionaries : {false, true})
        for (const int levels : {15, 20, 21, 30, 31, 200}) {
            recorder.received.clear();
            const Value deep = nested(levels, dictionaries, "core");
            agent.messages.post({message::savedPrefs, Dictionary{{"deep", deep}, {"flat", 1}}});
            ASSERT_TRUE(recorder.waitForCount(1)) << levels;
            // 64 levels of the bus, of which the payload itself takes three; what is cut leaves its
            // parent empty.
            const int deepest = dictionaries ? 20 : 30;
            const Value rest = dictionaries ? Value(Dictionary{}) : Value(Array{});
            const Value arrived =
                levels <= deepest ? deep : nested(deepest - 1, dictionaries, rest);
            EXPECT_EQ(recorder.received.front().info(),
                      (Dictionary{{"deep", arrived}, {"flat", 1}}))
                << levels;
        }
    EXPECT_EQ(agent.bus.state(), BusState::Connected);
}

TEST_F(Values, thatTheBusCannotCarryDoNotCutTheSenderOff) {
    AgentCenter agent(bus);
    ASSERT_TRUE(agent.waitUntilConnected());
    agent.messages.post({message::savedPrefs, Dictionary{{"huge", Data(std::size_t{1} << 26U)}}});
    agent.messages.post(
        {message::savedPrefs,
         Dictionary{{std::string("k\0y", 3), std::string("a\0b", 3)}, {"bad", "\xff\xfe"}}});
    agent.messages.post({message::savedPrefs, Dictionary{{"large", Data(std::size_t{20} << 20U)}}});
    ASSERT_TRUE(recorder.waitForCount(2));
    EXPECT_EQ(recorder.received[0].info(),
              (Dictionary{{"k\uFFFDy", "a\uFFFDb"}, {"bad", "\uFFFD\uFFFD"}}));
    EXPECT_EQ(recorder.received[1].info().objectForKey("large")->as<Data>()->size(),
              std::size_t{20} << 20U);
}

} // namespace
} // namespace zarvil
