#pragma once

#include "agent/Agent.h"
#include "agent/LineReader.h"
#include "agent/UsbDevices.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>

namespace zarvil::agent {

struct ApplicationOptions {
    QString settingsFile;
    QString logFile;
    /// The connected devices; empty for the USB devices of this computer.
    QString devicesFile;
    std::chrono::milliseconds testDuration{2000};
};

/// The agent as a process, with its files, its devices and its operator. What carries its messages
/// says when it can be reached.
class AgentApplication final : public QObject {
public:
    /// `exit` ends the event loop with that status; it may be called from any handler.
    AgentApplication(const ApplicationOptions& options, MessageCenter& messages,
                     std::function<void(int)> exit);

    /// Prints "ready": the agent hears and is heard.
    void ready();
    void problem(const QString& text) { log_.problem(text); }
    /// Ends the agent with an error.
    void fail(const QString& why);

private:
    void findDevices();
    void readDevices();
    void watchUsb();
    void openFile(const QString& path);

    ApplicationOptions options_;
    std::function<void(int)> exit_;
    AgentLog log_;
    AgentSettings settings_;
    Agent agent_;
    std::unique_ptr<UsbDevices> usb_;
    LineReader commands_;
};

} // namespace zarvil::agent
