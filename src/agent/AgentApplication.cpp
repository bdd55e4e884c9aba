#include "agent/AgentApplication.h"

#include "agent/Commands.h"
#include "agent/DeviceFile.h"
#include "bus/BusDaemon.h"
#include "protocol/BusNames.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace zarvil::agent {

namespace {

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
    busState_ = session_.observe([this](BusState state) { busChanged(state); });
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

void AgentApplication::busChanged(BusState state) {
    if (state == BusState::Connected)
        takeName();
    else if (state == BusState::Unavailable)
        log_.problem("No session bus: " + session_.error());
}

// After the messages are listened for, which the message center has seen to: whoever sees the name
// may speak at once.
void AgentApplication::takeName() {
    auto* watcher = new QDBusPendingCallWatcher(
        session_.connection()->asyncCall(nameRequest(bus::agentName)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        nameAnswered(watcher->reply());
    });
}

void AgentApplication::nameAnswered(const QDBusMessage& reply) {
    if (!session_.connection())
        return; // The bus went meanwhile; the next one is asked again.
    const NameOutcome outcome = nameOutcome(reply);
    if (outcome == NameOutcome::Owned) {
        log_.note(QStringLiteral("Ready"));
        print(QStringLiteral("ready"));
        return;
    }
    const QString why = outcome == NameOutcome::Taken ? QStringLiteral("another agent is running")
                                                      : reply.errorMessage();
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
