#include "EventWait.h"
#include "PrivateBus.h"
#include "bus/DBusMessageCenter.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"

#include <QProcess>

#include <algorithm>
#include <memory>

namespace zarvil {
namespace {

/// Real agents on a private bus with a home folder of their own.
class AgentProcess : public testing::Test {
protected:
    using Process = std::unique_ptr<QProcess, void (*)(QProcess*)>;

    AgentProcess() {
        QFile devices(home.filePath("devices.json"));
        EXPECT_TRUE(devices.open(QIODevice::WriteOnly));
        devices.write(R"([{"DeviceName": "UPS", "DeviceVendor": "V", "DeviceSerial": "1"}])");
        for (const std::string_view name : message::agentToPane)
            subscriptions.push_back(pane.addObserver(
                name, [this](const Message& message) { received.push_back(message); }));
    }

    Process start(const QStringList& arguments = {}) {
        const auto end = [](QProcess* process) {
            process->kill();
            process->waitForFinished();
            delete process;
        };
        Process agent(new QProcess, end);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("PATH", home.path() + ":" + environment.value("PATH"));
        environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
        environment.remove("XDG_STATE_HOME");
        agent->setProcessEnvironment(environment);
        agent->start(ZARVIL_AGENT,
                     QStringList{"--exit-with-parent", "--devices", home.filePath("devices.json")} +
                         arguments);
        return agent;
    }
    Process startReady(const QStringList& arguments = {}) {
        auto agent = start(arguments);
        EXPECT_EQ(nextLine(*agent), "ready\n");
        return agent;
    }

    static QByteArray nextLine(QProcess& process) {
        EXPECT_TRUE(waitFor([&] { return process.canReadLine(); }))
            << process.readAllStandardError().constData();
        return process.readLine();
    }
    static bool waitForEnd(QProcess& process) {
        return waitFor([&] { return process.state() == QProcess::NotRunning; });
    }

    /// The first message of that name among those received, once there is one.
    std::optional<Message> next(std::string_view name) {
        const auto find = [&] { return std::ranges::find(received, name, &Message::name); };
        const bool came = waitFor([&] { return find() != received.end(); });
        return came ? std::optional(*find()) : std::nullopt;
    }
    Message ask(std::string_view question, std::string_view answer) {
        received.clear();
        pane.post(Message(question));
        const auto message = next(answer);
        EXPECT_TRUE(message) << answer;
        return message.value_or(Message(answer));
    }

    QTemporaryDir home;
    PrivateBus bus;
    BusConnection session{bus.options()};
    DBusMessageCenter pane{session, bus::agentName};
    std::vector<Message> received;
    std::vector<Subscription> subscriptions;
};

TEST_F(AgentProcess, takesCommandsAndOutlivesTheEndOfItsInput) {
    const auto agent = startReady();
    agent->write("plug A|B|C\nnonsense\nquitp");
    EXPECT_EQ(nextLine(*agent), "ok\n");
    EXPECT_TRUE(nextLine(*agent).startsWith("unknown command"));
    ASSERT_TRUE(next(message::deviceConnected));
    agent->closeWriteChannel();
    ask(message::ping, message::pingAnswer);
    EXPECT_EQ(agent->state(), QProcess::Running);
}

TEST_F(AgentProcess, refusesToBeASecondOne) {
    const auto first = startReady();
    const auto second = start();
    ASSERT_TRUE(waitForEnd(*second));
    EXPECT_EQ(second->exitCode(), 1);
    EXPECT_TRUE(second->readAllStandardError().contains("another agent is running"));
    ask(message::ping, message::pingAnswer);
}

TEST_F(AgentProcess, survivesDevicesThatCannotBeRead) {
    const auto agent = startReady({"--devices", home.filePath("missing.json")});
    EXPECT_TRUE(agent->readAllStandardError().contains("missing.json"));
    EXPECT_TRUE(
        ask(message::prefsLoaded, message::allDevices).info().arrayForKey("devices")->empty());
}

TEST_F(AgentProcess, saysSoWhenNothingOpensItsLog) {
    const auto agent = startReady();
    QFile opener(home.filePath("xdg-open"));
    ASSERT_TRUE(opener.open(QIODevice::WriteOnly));
    opener.write("#!/bin/sh\nexit 4\n");
    opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    opener.close();
    QByteArray errors;
    const auto said = [&] {
        errors += agent->readAllStandardError();
        return errors.contains("No application opens");
    };
    pane.post(Message(message::viewLog));
    ASSERT_TRUE(waitFor(said));
}

TEST_F(AgentProcess, answersBadArgumentsWithAnError) {
    for (const QStringList& arguments :
         {QStringList{"--nonsense"}, QStringList{"extra"}, QStringList{"--root", "/no/such"},
          QStringList{"--test-duration", "soon"}}) {
        const auto agent = start(arguments);
        ASSERT_TRUE(waitForEnd(*agent));
        EXPECT_EQ(agent->exitCode(), 1);
        EXPECT_FALSE(agent->readAllStandardError().isEmpty());
    }
}

} // namespace
} // namespace zarvil
