#import "cocoa/messages/DistributedMessageCenter.h"

#import "NotificationServers.h"
#import "RunLoop.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

TEST(DistributedMessageCenter, deliversWholeMessagesInOrderAndOnlyWhereObserved) {
    DistributedMessageCenter center;
    std::vector<Message> received;
    const auto keep = [&received](const Message& message) { received.push_back(message); };
    auto first = center.addObserver("ZVTestFirst", keep);
    auto second = center.addObserver("ZVTestSecond", keep);
    auto ended = center.addObserver("ZVTestFirst", [](const Message&) { FAIL(); });
    ended.cancel();

    const Message full("ZVTestFirst", {{"prefKey", "\xC3\xA4"}, {"prefObj", true}});
    center.post(full);
    EXPECT_TRUE(received.empty()) << "a handler never runs inside post";
    center.post(Message("ZVTestOther"));
    center.post(Message("ZVTestSecond"));
    ASSERT_TRUE(spinUntil([&] { return received.size() == 2; }));
    EXPECT_EQ(received[0], full);
    EXPECT_EQ(received[1], Message("ZVTestSecond")) << "without user info";
}

TEST(DistributedMessageCenter, handlerMayEndItsOwnObservationAndTheCenter) {
    auto center = std::make_unique<DistributedMessageCenter>();
    std::optional<Subscription> own;
    int calls = 0;
    own = center->addObserver("ZVTestOnce", [&](const Message&) {
        own.reset();
        center.reset();
        ++calls;
    });
    center->post(Message("ZVTestOnce"));
    EXPECT_TRUE(spinUntil([&] { return calls == 1; }));
    EXPECT_FALSE(center);
}

TEST(DistributedMessageCenter, hearsAgainAfterTheServerDied) {
    DistributedMessageCenter center;
    int heard = 0;
    auto observed = center.addObserver("ZVTestHeard", [&](const Message&) { ++heard; });
    center.post(Message("ZVTestHeard"));
    ASSERT_TRUE(spinUntil([&] { return heard == 1; }));

    ASSERT_TRUE(test::killNotificationServer());
    // What is posted meanwhile may be lost, as without a receiver; posting it must not fail.
    EXPECT_TRUE(spinUntil([&] {
        center.post(Message("ZVTestHeard"));
        return heard > 1;
    }));
}

} // namespace

} // namespace zarvil::cocoa
