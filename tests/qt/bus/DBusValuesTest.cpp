#include "BusHarness.h"

#include <QDBusArgument>
#include <QDBusUnixFileDescriptor>
#include <QFile>

#include <cmath>
#include <limits>
#include <type_traits>

namespace zarvil {
namespace {

/// Sends from a raw connection or from a center and gives what the pane received.
class Values : public BusHarness {
protected:
    Values() { EXPECT_TRUE(waitUntilConnected(pane)); }

    Message received(const QVariantList& arguments) {
        recorder.received.clear();
        EXPECT_TRUE(raw.send(signal(message::savedPrefs, arguments)));
        EXPECT_TRUE(recorder.waitForCount(1));
        return recorder.received.at(0);
    }
    Message received(const QVariantMap& map) { return received(QVariantList{map}); }

    DBusMessageCenter pane{agentOptions()};
    Recorder recorder{pane};
    QDBusConnection raw = peer();
};

template <typename... Fields>
QVariant structure(const Fields&... fields) {
    QDBusArgument argument;
    argument.beginStructure();
    (void)(argument << ... << fields);
    argument.endStructure();
    return QVariant::fromValue(argument);
}

template <typename Key, typename Mapped>
QVariant map(const Key& key, const Mapped& mapped) {
    QDBusArgument argument;
    argument.beginMap(QMetaType::fromType<Key>(), QMetaType::fromType<Mapped>());
    argument.beginMapEntry();
    argument << key << mapped;
    argument.endMapEntry();
    argument.endMap();
    return QVariant::fromValue(argument);
}

template <typename Element>
QVariant array(const std::vector<Element>& elements) {
    QDBusArgument argument;
    argument.beginArray(QMetaType::fromType<Element>());
    for (const Element& element : elements)
        argument << element;
    argument.endArray();
    return QVariant::fromValue(argument);
}

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
        Dictionary{{"", 1}, {"a", Dictionary{{"b", Array{Data{std::byte{7}}}}}}},
    };
    DBusMessageCenter agent(agentOptions());
    ASSERT_TRUE(waitUntilConnected(agent));
    for (const Value& value : values)
        agent.post({message::savedPrefs, Dictionary{{"value", value}}});
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
        {array(std::vector{1, 2}), Array{1, 2}},
        {array(std::vector{QStringList{"a"}, QStringList{}}), Array{Array{"a"}, Array{}}},
        {map(QString("k"), 1), Dictionary{{"k", 1}}},
        {map(QDBusObjectPath("/k"), QString("v")), Dictionary{{"/k", "v"}}},
        {map(QString("k"), QDBusVariant(map(QString("l"), true))),
         Dictionary{{"k", Dictionary{{"l", true}}}}},
    };
    for (const Case& one : cases) {
        const Message message = received(QVariantMap{{"value", one.sent}});
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
        structure(1, QString("x")),
        map(1, QString("x")),
        map(true, QDBusVariant(1)),
        QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())),
        QVariant::fromValue(QDBusVariant(structure(1, 2))),
    };
    for (const QVariant& bad : foreign) {
        const Message message = received(QVariantMap{
            {"bad", bad},
            {"good", 1},
            {"inner", QVariantMap{{"bad", bad}, {"good", QVariantList{bad, "x", bad}}}}});
        EXPECT_EQ(message.info(),
                  (Dictionary{{"good", 1}, {"inner", Dictionary{{"good", Array{"x"}}}}}))
            << bad.typeName();
    }
}

TEST_F(Values, ofAWrongPayloadReadAsNone) {
    EXPECT_EQ(received(QVariantList{}).userInfo, std::nullopt);
    EXPECT_EQ(received(QVariantMap{}).userInfo, std::nullopt);
    EXPECT_EQ(received(QVariantList{"text"}).userInfo, std::nullopt);
    EXPECT_EQ(received(QVariantList{structure(1, 2)}).userInfo, std::nullopt);
    EXPECT_EQ(received(QVariantList{QVariantMap{{"a", 1}}, "further"}).info(),
              (Dictionary{{"a", 1}}));
}

/// A value within the given number of arrays or dictionaries.
Value nested(int levels, bool dictionaries) {
    Value value = "core";
    for (int level = 0; level < levels; ++level)
        value = dictionaries ? Value(Dictionary{{"k", value}}) : Value(Array{value});
    return value;
}

int depthOf(const Value& value) {
    if (const auto* array = value.as<Array>())
        return array->empty() ? 0 : 1 + depthOf(array->front());
    const auto* dictionary = value.as<Dictionary>();
    const Value* inner = dictionary ? dictionary->objectForKey("k") : nullptr;
    return inner ? 1 + depthOf(*inner) : 0;
}

TEST_F(Values, nestedDeeperThanTheBusAllowsAreCutThereAndTheConnectionStands) {
    DBusMessageCenter agent(agentOptions());
    ASSERT_TRUE(waitUntilConnected(agent));
    for (const bool dictionaries : {false, true})
        for (const int levels : {15, 20, 25, 30, 31, 32, 40, 200}) {
            recorder.received.clear();
            agent.post({message::savedPrefs,
                        Dictionary{{"deep", nested(levels, dictionaries)}, {"flat", 1}}});
            ASSERT_TRUE(recorder.waitForCount(1)) << levels;
            const Dictionary& info = recorder.received.front().info();
            EXPECT_EQ(info.integerForKey("flat"), 1);
            ASSERT_TRUE(info.objectForKey("deep"));
            const int depth = depthOf(*info.objectForKey("deep"));
            // 64 levels of the bus, of which the payload itself takes three; what is cut leaves its
            // parent empty.
            const int deepest = dictionaries ? 20 : 30;
            EXPECT_EQ(depth, levels <= deepest ? levels : deepest - 1) << levels;
        }
    EXPECT_EQ(agent.connectionState(), ConnectionState::Connected);
}

TEST_F(Values, thatTheBusCannotCarryDoNotCutTheSenderOff) {
    DBusMessageCenter agent(agentOptions());
    ASSERT_TRUE(waitUntilConnected(agent));
    agent.post({message::savedPrefs, Dictionary{{"huge", Data(std::size_t{1} << 26U)}}});
    agent.post({message::savedPrefs,
                Dictionary{{std::string("k\0y", 3), std::string("a\0b", 3)}, {"bad", "\xff\xfe"}}});
    agent.post({message::savedPrefs, Dictionary{{"large", Data(std::size_t{20} << 20U)}}});
    ASSERT_TRUE(recorder.waitForCount(2));
    EXPECT_EQ(recorder.received[0].info(),
              (Dictionary{{"k\uFFFDy", "a\uFFFDb"}, {"bad", "\uFFFD\uFFFD"}}));
    EXPECT_EQ(recorder.received[1].info().objectForKey("large")->as<Data>()->size(),
              std::size_t{20} << 20U);
}

} // namespace
} // namespace zarvil
