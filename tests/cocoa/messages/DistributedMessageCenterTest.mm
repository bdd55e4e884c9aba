#import "cocoa/messages/DistributedMessageCenter.h"

#import "RunLoop.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include <dirent.h>
#include <unistd.h>

namespace zarvil::cocoa {

namespace {

using test::spinUntil;

/// The process of the notification server that serves this test alone: it has the same folder for
/// temporary files.
std::vector<pid_t> notificationServers() {
    const std::string mark = std::string("TEMP=") + getenv("TEMP");
    std::vector<pid_t> found;
    DIR* processes = opendir("/proc");
    while (const dirent* entry = readdir(processes)) {
        const std::string folder = std::string("/proc/") + entry->d_name;
        std::string name;
        std::getline(std::ifstream(folder + "/comm"), name);
        if (name != "gdnc")
            continue;
        std::ifstream environment(folder + "/environ");
        for (std::string variable; std::getline(environment, variable, '\0');) {
            if (variable == mark)
                found.push_back(std::stoi(entry->d_name));
        }
    }
    closedir(processes);
    return found;
}

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

    const auto servers = notificationServers();
    ASSERT_FALSE(servers.empty());
    for (const pid_t server : servers)
        ::kill(server, SIGKILL);
    // What is posted meanwhile may be lost, as without a receiver; posting it must not fail.
    EXPECT_TRUE(spinUntil([&] {
        center.post(Message("ZVTestHeard"));
        return heard > 1;
    }));
}

} // namespace

} // namespace zarvil::cocoa
