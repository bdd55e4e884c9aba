#pragma once

#include "agent/Agent.h"
#include "agent/LineReader.h"
#include "agent/UsbDevices.h"
#include "bus/BusConnection.h"
#include "bus/DBusMessageCenter.h"

#include <QString>

#include <chrono>
#include <memory>

namespace zarvil::agent {

struct ApplicationOptions {
    QString settingsFile;
    QString logFile;
    /// The connected devices; empty for the USB devices of this computer.
    QString devicesFile;
    std::chrono::milliseconds testDuration{2000};
};

/// The agent as a process: on the session bus under its name, with its devices and its operator.
/// Prints "ready" once it owns the name; exits with an error when another process does.
class AgentApplication final : public QObject {
public:
    explicit AgentApplication(const ApplicationOptions& options);

private:
    void findDevices();
    void readDevices();
    void watchUsb();
    void busChanged(BusState state);
    void takeName();
    void nameAnswered(const QDBusMessage& reply);
    void openFile(const QString& path);

    ApplicationOptions options_;
    AgentLog log_;
    AgentSettings settings_;
    BusConnection session_{BusOptions::sessionBus()};
    DBusMessageCenter messages_{session_};
    Agent agent_;
    std::unique_ptr<UsbDevices> usb_;
    LineReader commands_;
    Subscription busState_;
};

} // namespace zarvil::agent
