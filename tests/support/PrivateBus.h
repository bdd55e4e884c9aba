#pragma once

#include "bus/BusConnection.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/prctl.h>
#include <sys/types.h>

namespace zarvil {

/// A message bus of the test's own, listening in a temporary folder: in health, hung (`freeze`) or
/// absent (`stop`). Ends with its owner, even when that crashes.
class PrivateBus {
public:
    explicit PrivateBus(
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
        daemon_.setProcessEnvironment(environment);
        start();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus() {
        for (const QString& name : connections_)
            QDBusConnection::disconnectFromBus(name);
        stop();
    }

    [[nodiscard]] QString address() const { return "unix:path=" + socket(); }
    /// For a connection that comes back at once.
    [[nodiscard]] BusOptions options() const {
        BusOptions options;
        options.address = address().toUtf8();
        options.firstRetry = std::chrono::milliseconds(5);
        return options;
    }

    /// A connection of its own, as another process would have.
    QDBusConnection connect(const QString& name) {
        connections_ << name;
        return QDBusConnection::connectToBus(address(), name);
    }

    /// Returns once the bus listens; after `stop` it does so at the same address.
    void start() {
        daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        daemon_.start("dbus-daemon",
                      {"--session", "--nofork", "--print-address", "--address=" + address()});
        ASSERT_TRUE(daemon_.waitForReadyRead()) << qPrintable(daemon_.errorString());
    }

    void stop() {
        daemon_.kill();
        daemon_.waitForFinished();
        QFile::remove(socket());
    }

    /// Keeps the bus from reading and answering anything until `resume`; it takes connections.
    void freeze() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP); }
    void resume() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT); }

private:
    [[nodiscard]] QString socket() const { return folder_.filePath("bus"); }

    QTemporaryDir folder_;
    QProcess daemon_;
    QStringList connections_;
};

} // namespace zarvil
