#include "agent/AgentApplication.h"

#include "agent/Commands.h"
#include "agent/DeviceRecord.h"

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

AgentApplication::AgentApplication(const ApplicationOptions& options, MessageCenter& messages,
                                   std::function<void(int)> exit)
    : options_(options),
      exit_(std::move(exit)),
      log_(options.logFile),
      settings_(options.settingsFile, log_),
      agent_({messages, settings_, log_, [this](const QString& path) { openFile(path); },
              [this] { exit_(EXIT_SUCCESS); }}),
      commands_([this](const QString& line) {
          const QString answer = runCommand(agent_, line);
          if (!answer.isEmpty())
              print(answer);
      }) {
    agent_.setTestDuration(options.testDuration);
    findDevices();
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

void AgentApplication::ready() {
    log_.note(QStringLiteral("Ready"));
    print(QStringLiteral("ready"));
}

void AgentApplication::fail(const QString& why) {
    log_.problem(why);
    exit_(EXIT_FAILURE);
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
