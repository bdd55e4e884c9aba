#pragma once

#include "agent/Agent.h"
#include "agent/DeviceRecord.h"
#include "protocol/InProcessMessageCenter.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"

#include "EventWait.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace zarvil::agent {

/// An agent in this process. The test plays the pane and the operator.
class AgentHarness : public testing::Test {
protected:
    AgentHarness() {
        for (const std::string_view name : message::agentToPane)
            sniffers_.push_back(
                bus.addObserver(name, [this](const Message& message) { sent.push_back(message); }));
        start();
    }

    void start() {
        settings = std::make_unique<AgentSettings>(settingsFile(), log);
        agent = std::make_unique<Agent>(
            Agent::Parts{bus, *settings, log, [](const QString&) {}, [this] { ++quits; }});
    }
    void restart() {
        agent.reset();
        start();
    }

    /// Sends what a pane would and gives what the agent sent at once.
    std::vector<Message> answersTo(Message message) {
        sent.clear();
        bus.post(std::move(message));
        bus.deliver();
        return sent;
    }
    std::vector<Message> answersTo(std::string_view name) { return answersTo(Message(name)); }

    void change(std::string_view key, Value value) {
        answersTo(
            {message::prefsChanged, Dictionary{{"prefKey", key}, {"prefObj", std::move(value)}}});
    }
    /// The settings as the agent reports them.
    Dictionary reported() {
        const auto answers = answersTo(message::prefsLoaded);
        return answers.empty() ? Dictionary() : answers.front().info();
    }
    Array reportedDevices(std::string_view list) {
        Array devices;
        for (const Message& answer : answersTo(message::prefsLoaded))
            if (answer.name == list)
                devices = *answer.info().arrayForKey("devices");
        return devices;
    }

    [[nodiscard]] QString settingsFile() const { return folder.filePath("a/settings.plist"); }
    QByteArray logText() {
        QFile file(log.path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    InProcessMessageCenter bus;
    AgentLog log{folder.filePath("b/agent.log")};
    std::unique_ptr<AgentSettings> settings;
    std::unique_ptr<Agent> agent;
    std::vector<Message> sent;
    int quits = 0;

private:
    std::vector<Subscription> sniffers_;
};

} // namespace zarvil::agent
