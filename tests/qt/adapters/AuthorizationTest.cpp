#include "FakeServices.h"
#include "PrivateBus.h"
#include "qt/adapters/PolkitAuthorization.h"

#include <QTest>

#include <optional>

namespace zarvil {
namespace {

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

constexpr const char* unavailable = "Administrator rights cannot be checked: the authorization "
                                    "service (polkit) is not available.";

BusOptions onDemand(const PrivateBus& bus) {
    BusOptions options = bus.options();
    options.firstRetry.reset();
    return options;
}

TEST(PolkitAuthorizationTest, aSystemBusOrAnAuthorityThatComesLateOrAgainIsUsedAtTheNextClick) {
    PrivateBus bus;
    bus.stop();
    PolkitAuthorization authorization(onDemand(bus));
    const auto click = [&] { return ask(authorization, Interaction::MayAskUser); };
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(click().missing, "polkit");
        bus.start();
        EXPECT_EQ(click().reason, unavailable) << "nobody owns polkit's name";
        auto daemon = bus.connect(QStringLiteral("authority-%1").arg(round));
        fake::Authority authority(daemon);
        authority.quiet.authorized = true;
        EXPECT_TRUE(click().granted);
        bus.stop();
    }
}

TEST(PolkitAuthorizationTest, aSystemBusThatHangsHoldsUpNoOtherConnection) {
    PrivateBus hung;
    hung.freeze();
    PolkitAuthorization authorization(onDemand(hung));
    std::optional<AuthorizationOutcome> outcome;
    authorization.check("x", Interaction::None, [&](const auto& reply) { outcome = reply; });
    PrivateBus bus;
    EXPECT_TRUE(bus.connect("meanwhile").isConnected());
    EXPECT_FALSE(outcome);
    ASSERT_TRUE(QTest::qWaitFor([&] { return outcome.has_value(); }));
    EXPECT_EQ(outcome->reason, unavailable);
    EXPECT_FALSE(BusConnection::anyHangs());
}

TEST(PolkitAuthorizationTest, theAuthoritysAnswerDecides) {
    PrivateBus bus;
    fake::Authority authority(bus.connect("authority"));
    PolkitAuthorization authorization(onDemand(bus));
    const QString error = "org.freedesktop.PolicyKit1.Error.";
    const char* cancelled = "The authentication was cancelled.";
    using Answer = fake::Authority::Answer;
    const Answer yes{true, false, {}, {}, {}}, no{}, challenge{false, true, {}, {}, {}};
    const Answer unregistered{false, false, {}, error + "Failed", "Action x is not registered"};
    const struct {
        Interaction interaction;
        Answer quiet, aloud;
        const char* questions;
        std::string reason;
    } cases[] = {
        {Interaction::None, yes, no, "quiet ", ""},
        {Interaction::None, challenge, yes, "quiet ", "An administrator's password is needed."},
        {Interaction::MayAskUser, yes, no, "quiet ", ""},
        {Interaction::MayAskUser, no, yes, "quiet ", "You do not have administrator rights."},
        {Interaction::MayAskUser, challenge, yes, "quiet asks ", ""},
        {Interaction::MayAskUser, challenge, no, "quiet asks ", "The authentication has failed."},
        {Interaction::MayAskUser, challenge, challenge, "quiet asks ",
         "No authentication agent is running that could ask for an administrator's password."},
        {Interaction::MayAskUser,
         challenge,
         {false, false, "polkit.dismissed", {}, {}},
         "quiet asks ",
         cancelled},
        {Interaction::MayAskUser,
         challenge,
         {false, false, {}, error + "Cancelled", {}},
         "quiet asks ",
         cancelled},
        {Interaction::None, unregistered, no, "quiet ",
         "Administrator rights cannot be checked: Zarvil's policy for the authorization service "
         "(polkit) is not installed."},
        {Interaction::None,
         {false, false, {}, error + "Failed", "Other"},
         no,
         "quiet ",
         "Administrator rights cannot be checked: the authorization service (polkit) has failed."},
    };
    for (const auto& row : cases) {
        authority.quiet = row.quiet;
        authority.aloud = row.aloud;
        authority.questions.clear();
        const auto outcome = ask(authorization, row.interaction);
        EXPECT_EQ(outcome.reason, row.reason);
        EXPECT_EQ(outcome.granted, outcome.reason.empty());
        EXPECT_EQ(outcome.missing, "") << row.reason;
        EXPECT_EQ(authority.questions, row.questions) << row.reason;
    }
    EXPECT_EQ(authority.signature, "(sa{sv})sa{ss}us");
    EXPECT_EQ(authority.action, "com.Tessrow.Zarvil.system.privilege.admin");
    EXPECT_EQ(authority.kind, "system-bus-name");
    EXPECT_EQ(authority.subjectDetails, (QVariantMap{{"name", authority.sender}}));
}

TEST(PolkitAuthorizationTest, lockingGivesBackWhatAPasswordHasOpened) {
    PrivateBus bus;
    fake::Authority authority(bus.connect("authority"));
    PolkitAuthorization authorization(onDemand(bus));
    authority.quiet = {true, false, "polkit.temporary_authorization_id", {}, {}};
    ASSERT_TRUE(ask(authorization, Interaction::None).granted);
    authorization.release("system.privilege.admin");
    EXPECT_TRUE(QTest::qWaitFor([&] { return authority.revoked == "t1"; }));
}

} // namespace
} // namespace zarvil
