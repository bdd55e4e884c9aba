#include "PaneHarness.h"
#include "platform/AlertQueue.h"

namespace zarvil {
namespace {

using Log = std::vector<std::string>;

class Handlers : public PaneHarness {
protected:
    std::function<void()> note(const std::string& name) {
        return [this, name] { log.push_back(name); };
    }
    std::vector<std::string> alertsShown() {
        std::vector<std::string> shown;
        while (const auto text = alerts.textProperty().get()) {
            shown.push_back(*text);
            alerts.dismiss();
        }
        return shown;
    }

    Log log;
    AlertQueue alerts{handlers, strings};
};

TEST_F(Handlers, whatComesDuringAHandlerFollowsInOrder) {
    handlers.run([&] {
        handlers.run([this](const std::string& name) { log.push_back(name); }, std::string("b"));
        handlers.run([this] {
            handlers.run(note("d"));
            log.emplace_back("c");
        });
        log.emplace_back("a");
    });
    EXPECT_EQ(log, (Log{"a", "b", "c", "d"}));
}

TEST_F(Handlers, aModalLoopLetsOthersThroughOneAtATime) {
    handlers.run([&] {
        handlers.run(note("held before"));
        handlers.letThroughDuring([&] {
            handlers.run([&] {
                handlers.run(note("second"));
                log.emplace_back("first");
            });
            alerts.presentError({"d", 1, "waits for the panel"});
            EXPECT_FALSE(alerts.textProperty().get());
        });
        handlers.run(note("after"));
        log.emplace_back("panel gone");
    });
    EXPECT_EQ(log, (Log{"held before", "first", "second", "panel gone", "after"}));
    EXPECT_EQ(alertsShown(), Log{"waits for the panel"});
}

TEST_F(Handlers, ofAHeldTimerOneTickWaitsAndNoneOfADeadOne) {
    auto ping = handlers.schedule(time, 3, Repetition::Repeating, note("ping"));
    auto dead = handlers.schedule(time, 2, Repetition::Once, note("dead"));
    std::unique_ptr<Timer> self;
    self = handlers.schedule(time, 4, Repetition::Once, [&] {
        self.reset();
        log.emplace_back("self");
    });
    auto hold = handlers.hold();
    time.advance(100);
    dead.reset();
    EXPECT_TRUE(log.empty());
    hold.cancel();
    EXPECT_EQ(log, (Log{"ping", "self"}));
    time.advance(3);
    EXPECT_EQ(log.back(), "ping");
}

TEST_F(Handlers, alertsComeOneByOneAfterTheHandlerAndEqualOnesOnce) {
    handlers.run([&] {
        for (const auto& [code, text] :
             {std::pair{1, "a"}, {2, ""}, {1, "a"}, {3, "\u202Ea"}, {2, ""}})
            alerts.presentError({"d", code, text});
        EXPECT_FALSE(alerts.textProperty().get());
    });
    alerts.presentError({"d", 1, "a"}); // on screen by now
    EXPECT_EQ(alertsShown(), (Log{"a", "The operation could not be completed.", "\uFFFDa"}));
    alerts.presentError({"d", 1, "a"}); // read, so it is news again
    EXPECT_EQ(alertsShown(), Log{"a"});
}

TEST_F(Handlers, anAlertDuringAStateReportNeverSwitchesTheProtectionOff) {
    // The scripts folder cannot be made: a file is in its place.
    files.files["/home/user/Library/Zarvil Scripts"] = "";
    loadWithAgent({{"UseScripts", true}}, false);
    time.advance(10); // the agent misses a ping
    EXPECT_TRUE(pane.lostConnection);
    errors.presented.clear();
    int nested = 0;
    errors.whilePresenting = [&] {
        if (++nested > 5)
            return;
        pane.performHandler(
            "stateChanged:",
            std::make_unique<Message>(message::stateChanged, Dictionary{{"state", true}}).get());
        pane.performHandler("appDidAnswer:", nullptr);
    };
    takeSent();
    agentSends(Message(message::stateChanged, Dictionary{{"state", false}}));
    EXPECT_EQ(errors.presented.size(), 1U);
    EXPECT_TRUE(pane.state);
    for (const Message& sent : takeSent())
        EXPECT_FALSE(sent.name == message::setState && !sent.info().boolForKey("state"));
}

TEST_F(Handlers, bearANullMessage) {
    for (const auto handler :
         {"deviceConnected:", "deviceDisconnected:", "allSavedDevices:", "allConnectedDevices:",
          "allDevices:", "stateChanged:", "appDidAnswer:", "setupPrefs:", "newSavedDevice:",
          "testFinished:", "pushValidationFinished:"}) {
        loadWithAgent();
        pane.performHandler(handler, nullptr);
        EXPECT_FALSE(pane.lostConnection) << handler;
    }
}

} // namespace
} // namespace zarvil
