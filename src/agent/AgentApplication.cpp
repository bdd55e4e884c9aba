#include "agent/AgentApplication.h"

#include "agent/Commands.h"
#include "agent/DeviceFile.h"
#include "protocol/BusNames.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace zarvil::agent {

namespace {

// Of the bus's own interface: refuse rather than wait in line for the name.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;

void print(const QString& text) {
    std::printf("%s\n", qUtf8Printable(text));
    std::fflush(stdout);
}

} // namespace

AgentApplication::AgentApplication(const ApplicationOptions& options)
    : options_(options),
      log_(options.logFile),
      settings_(options.settingsFile, log_),
      agent_({messages_, settings_, log_, [this](const QString& path) { openFile(path); },
              [] { QCoreApplication::quit(); }}),
      commands_([this](const QString& line) {
          const QString answer = runCommand(agent_, line);
          if (!answer.isEmpty())
              print(answer);
      }) {
    agent_.setTestDuration(options.testDuration);
    findDevices();
    connection_ = messages_.observeConnectionState(
        [this](ConnectionState state) { connectionChanged(state); });
}

void AgentApplication::findDevices() {
    if (options_.devicesFile.isEmpty())
        watchUsb();
    else
        readDevices();
}

void AgentApplication::readDevices() {
    const DeviceFileContents contents = readDeviceFile(options_.devicesFile);
    for (const QString& problem : contents.problems)
        log_.problem("Cannot read all of the devices in " + options_.devicesFile + ": " + problem);
    for (const Value& device : contents.devices)
        agent_.deviceIsThere(*device.as<Dictionary>());
}

void AgentApplication::watchUsb() {
    const auto listing = std::make_shared<bool>(true);
    usb_ = std::make_unique<UsbDevices>(
        [this, listing](const Dictionary& device) {
            if (*listing)
                agent_.deviceIsThere(device);
            else
                agent_.deviceAppeared(device);
        },
        [this](const Dictionary& device) { agent_.deviceWent(device); });
    const QString problem = usb_->start();
    *listing = false;
    if (!problem.isEmpty())
        log_.problem("Cannot watch the USB devices: " + problem);
}

void AgentApplication::connectionChanged(ConnectionState state) {
    if (state == ConnectionState::Connected)
        takeName();
    else if (state == ConnectionState::Unavailable)
        log_.problem("No session bus: " + messages_.connectionError());
}

void AgentApplication::takeName() {
    QDBusMessage request = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName");
    request << QString(bus::agentName) << doNotQueue;
    auto* watcher = new QDBusPendingCallWatcher(messages_.connection()->asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        nameAnswered(watcher->reply());
    });
}

void AgentApplication::nameAnswered(const QDBusMessage& reply) {
    if (messages_.connectionState() != ConnectionState::Connected)
        return; // The bus went meanwhile; the next one is asked again.
    const uint result = reply.arguments().value(0).toUInt();
    if (reply.type() == QDBusMessage::ReplyMessage &&
        (result == primaryOwner || result == alreadyOwner)) {
        log_.note(QStringLiteral("Ready"));
        print(QStringLiteral("ready"));
        return;
    }
    const QString why = reply.type() == QDBusMessage::ErrorMessage
                            ? reply.errorMessage()
                            : QStringLiteral("another agent is running");
    log_.problem(QStringLiteral("Cannot own the name %1 on the session bus: %2")
                     .arg(QString(bus::agentName), why));
    QCoreApplication::exit(EXIT_FAILURE);
}

void AgentApplication::openFile(const QString& path) {
    auto* opener = new QProcess(this);
    const auto complain = [this, path, opener] {
        log_.problem("No application opens " + path + ": xdg-open is missing or has failed");
        opener->deleteLater();
    };
    connect(opener, &QProcess::errorOccurred, this, [complain](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            complain();
    });
    connect(opener, &QProcess::finished, this, [opener, complain](int code) {
        if (code == 0)
            opener->deleteLater();
        else
            complain();
    });
    opener->start("xdg-open", {path});
}

} // namespace zarvil::agent
