#include "HungBus.h"
#include "PrivateBus.h"
#include "bus/BusProbe.h"
#include "qt/adapters/PolkitAuthorization.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <optional>
#include <unistd.h>

namespace zarvil {
namespace {

constexpr const char* authorityName = "org.freedesktop.PolicyKit1";

/// Answers as told, and remembers the question.
class FakeAuthority final : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override {
        if (call.member() != QLatin1String("CheckAuthorization"))
            return false;
        signature = call.signature();
        const auto subject = call.arguments().at(0).value<QDBusArgument>();
        subject.beginStructure();
        subject >> kind >> subjectDetails;
        subject.endStructure();
        action = call.arguments().at(1).toString();
        flags = call.arguments().at(3).toUInt();
        connection.send(error.isEmpty() ? call.createReply(result())
                                        : call.createErrorReply(error, "told to"));
        return true;
    }

    QVariant result() const {
        QDBusArgument out;
        out.beginStructure();
        out << authorized << challenge;
        out.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QString>());
        if (dismissed) {
            out.beginMapEntry();
            out << QStringLiteral("polkit.dismissed") << QStringLiteral("true");
            out.endMapEntry();
        }
        out.endMap();
        out.endStructure();
        return QVariant::fromValue(out);
    }

    bool authorized = false, challenge = false, dismissed = false;
    QString error;

    QString signature, kind, action;
    QVariantMap subjectDetails;
    uint flags = 99;
};

AuthorizationOutcome ask(Authorization& authorization, Interaction interaction) {
    std::optional<AuthorizationOutcome> outcome;
    int replies = 0;
    authorization.check("system.privilege.admin", interaction, [&](const auto& reply) {
        outcome = reply;
        ++replies;
    });
    EXPECT_EQ(replies, 0) << "replied from within the question";
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.has_value(); }));
    EXPECT_EQ(replies, 1);
    return outcome.value_or(AuthorizationOutcome{true, "no reply"});
}

/// Field 22 of the process's status, counted without the code under test.
quint64 startTimeOfThisProcess() {
    QFile stat("/proc/self/stat");
    EXPECT_TRUE(stat.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(stat.readAll());
    return text.section(") ", -1).section(' ', 19, 19).toULongLong();
}

constexpr const char* unavailable = "Administrator rights cannot be checked: the authorization "
                                    "service (polkit) is not available.";

TEST(PolkitAuthorizationTest, withoutABusOrAnAuthorityNothingIsGranted) {
    PrivateBus bus;
    const BusConnection::Connect connects[] = {
        [] { return QDBusConnection::connectToBus("unix:path=/nonexistent/bus", "absent"); },
        [&bus] { return bus.connect("system"); }};
    for (const auto& connect : connects) {
        PolkitAuthorization authorization(connect);
        const auto outcome = ask(authorization, Interaction::MayAskUser);
        EXPECT_FALSE(outcome.granted);
        EXPECT_EQ(outcome.reason, unavailable);
    }
}

TEST(PolkitAuthorizationTest, aSystemBusThatHangsHoldsUpNoOtherConnection) {
    const QTemporaryDir folder;
    const HungBus hung(folder.filePath("bus"));
    const QByteArray before = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", hung.address().toUtf8());
    PolkitAuthorization authorization;
    std::optional<AuthorizationOutcome> outcome;
    authorization.check("x", Interaction::None, [&](const auto& reply) { outcome = reply; });
    PrivateBus bus;
    EXPECT_TRUE(bus.connect("meanwhile").isConnected());
    EXPECT_FALSE(outcome);
    ASSERT_TRUE(QTest::qWaitFor([&] { return outcome.has_value(); }));
    EXPECT_EQ(outcome->reason, unavailable);
    EXPECT_FALSE(BusConnection::anyHangs());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", before);
}

TEST(PolkitAuthorizationTest, theAuthoritysAnswerDecides) {
    PrivateBus bus;
    FakeAuthority authority;
    auto daemon = bus.connect("authority");
    ASSERT_TRUE(daemon.registerVirtualObject("/org/freedesktop/PolicyKit1/Authority", &authority));
    ASSERT_TRUE(daemon.registerService(authorityName));
    PolkitAuthorization authorization([&bus] { return bus.connect("system"); });
    const auto quiet = Interaction::None;
    const auto asking = Interaction::MayAskUser;
    const QString prefix = "org.freedesktop.PolicyKit1.Error.";
    const char* noAgent =
        "No authentication agent is running that could ask for an administrator's password.";
    const struct {
        Interaction interaction;
        bool authorized, challenge, dismissed;
        QString error;
        const char* reason;
    } cases[] = {
        {asking, true, false, false, {}, ""},
        {quiet, true, true, false, {}, ""},
        {quiet, false, true, false, {}, "An administrator's password is needed."},
        {asking, false, true, false, {}, noAgent},
        {asking, false, false, false, {}, "You do not have administrator rights."},
        {asking, false, true, true, {}, "The authentication was cancelled."},
        {asking, true, false, false, prefix + "Cancelled", "The authentication was cancelled."},
        {asking, true, false, false, prefix + "Failed", unavailable},
    };
    for (const auto& row : cases) {
        authority.authorized = row.authorized;
        authority.challenge = row.challenge;
        authority.dismissed = row.dismissed;
        authority.error = row.error;
        const auto outcome = ask(authorization, row.interaction);
        EXPECT_EQ(outcome.reason, row.reason);
        EXPECT_EQ(outcome.granted, outcome.reason.empty());
        EXPECT_EQ(authority.flags, row.interaction == asking ? 1U : 0U);
    }
    EXPECT_EQ(authority.signature, "(sa{sv})sa{ss}us");
    EXPECT_EQ(authority.action, "com.Tessrow.Zarvil.system.privilege.admin");
    EXPECT_EQ(authority.kind, "unix-process");
    EXPECT_EQ(authority.subjectDetails.value("pid").toUInt(), static_cast<uint>(getpid()));
    EXPECT_EQ(authority.subjectDetails.value("start-time").toULongLong(), startTimeOfThisProcess());
}

TEST(BusProbeTest, onlySilenceCountsAsHanging) {
    const QTemporaryDir folder;
    const HungBus hung(folder.filePath("bus"));
    PrivateBus bus;
    constexpr std::chrono::milliseconds limit{500};
    for (const QByteArray& address :
         {bus.address().toUtf8(), bus.address().toUtf8() + ";unix:path=/nowhere",
          QByteArray("unix:path=/nonexistent/bus"), QByteArray("tcp:host=localhost"),
          QByteArray("unix:path=" + QByteArray(300, 'x')), QByteArray()})
        EXPECT_TRUE(busAnswers(address, limit)) << address.toStdString();
    EXPECT_FALSE(busAnswers(hung.address().toUtf8(), limit));
    EXPECT_FALSE(busAnswers(hung.address().toUtf8() + ",guid=00", limit));
}

} // namespace
} // namespace zarvil
