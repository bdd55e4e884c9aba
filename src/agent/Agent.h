#pragma once

#include "agent/AgentLog.h"
#include "agent/AgentSettings.h"
#include "protocol/MessageCenter.h"

#include <QObject>

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace zarvil::agent {

/// The agent's side of the protocol. Never shuts anything down and never sends anything outside.
/// Needs an event loop for what takes time: the test, delayed answers, writing the settings.
class Agent final : public QObject {
public:
    struct Parts {
        MessageCenter& messages;
        AgentSettings& settings;
        AgentLog& log;
        /// Shows a file in the user's default application.
        std::function<void(const QString&)> open;
        /// Ends the agent.
        std::function<void()> quit;
    };

    explicit Agent(Parts parts);
    /// Writes what has changed of the settings.
    ~Agent() override;

    /// A device that was connected before the agent came up: known, but not announced.
    void deviceIsThere(const Dictionary& device) { connected_.emplace_back(device); }
    void deviceAppeared(const Dictionary& device);
    /// False when no such device is connected.
    bool deviceWent(const Dictionary& device);
    /// Saves a device without being asked by the pane; false when it is saved already.
    bool saveByItself(const Dictionary& device);

    void setProtecting(bool protecting);
    /// The verdict of every check from now on; none: judged by the form of the IDs.
    void setVerdict(std::optional<std::int64_t> code) { verdict_ = code; }
    void setLateness(std::chrono::milliseconds lateness) { lateness_ = lateness; }
    void setMuted(bool muted) { muted_ = muted; }
    void setTestDuration(std::chrono::milliseconds duration) { testDuration_ = duration; }
    /// Tells the pane's host to end.
    void endHost();
    void quit() { parts_.quit(); }

private:
    void answer(std::string_view name, void (Agent::*handler)(const Dictionary&));
    void prefsLoaded(const Dictionary& info);
    void pinged(const Dictionary& info);
    void quitAsked(const Dictionary& info);
    void stateSet(const Dictionary& info);
    void prefsChanged(const Dictionary& info);
    void testAsked(const Dictionary& info);
    void logAsked(const Dictionary& info);
    void updateCheckAsked(const Dictionary& info);
    void saveAsked(const Dictionary& info);
    void forgetAsked(const Dictionary& info);
    void pushCheckAsked(const Dictionary& info);

    void finishTest();
    void send(Message message);
    void sendOldest();
    void writeSettingsSoon();

    Parts parts_;
    Array connected_;
    bool testing_ = false;
    bool muted_ = false;
    bool writePending_ = false;
    std::optional<std::int64_t> verdict_;
    std::chrono::milliseconds lateness_{0};
    std::chrono::milliseconds testDuration_{2000};
    // Sent in order whatever the lateness of each: every timer sends the oldest.
    std::deque<Message> late_;
    std::vector<Subscription> subscriptions_;
};

} // namespace zarvil::agent
