#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

#include <gtest/gtest.h>

namespace zarvil {

/// A message bus of the test's own, gone with this object. The daemon is ended by its process.
class PrivateBus {
public:
    explicit PrivateBus(
        const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
        daemon_.setProcessEnvironment(environment);
        daemon_.setStandardErrorFile(QProcess::nullDevice());
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
        if (daemon_.waitForStarted() && daemon_.waitForReadyRead())
            address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
        EXPECT_FALSE(address_.isEmpty()) << "dbus-daemon did not start";
    }
    ~PrivateBus() {
        for (const QString& name : connections_)
            QDBusConnection::disconnectFromBus(name);
        daemon_.terminate();
        daemon_.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    const QString& address() const { return address_; }

    /// A connection of its own, as another process would have.
    QDBusConnection connect(const QString& name) {
        connections_ << name;
        return QDBusConnection::connectToBus(address_, name);
    }

private:
    QProcess daemon_;
    QString address_;
    QStringList connections_;
#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/prctl.h>

namespace zarvil {

/// A message bus of the test's own, listening in a temporary folder. Ends with its owner, even
/// when that crashes.
class PrivateBus {
public:
    PrivateBus() { start(); }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus() { stop(); }

    [[nodiscard]] QString address() const { return "unix:path=" + socket(); }

    /// Returns once the bus listens; after `stop` it does so at the same address.
    void start() {
        daemon_.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        daemon_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        daemon_.start("dbus-daemon",
                      {"--session", "--nofork", "--print-address", "--address=" + address()});
        ASSERT_TRUE(daemon_.waitForReadyRead()) << qPrintable(daemon_.errorString());
    }

    void stop() {
        daemon_.kill();
        daemon_.waitForFinished();
        QFile::remove(socket());
    }

private:
    [[nodiscard]] QString socket() const { return folder_.filePath("bus"); }

    QTemporaryDir folder_;
    QProcess daemon_;
};

} // namespace zarvil
