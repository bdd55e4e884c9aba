#pragma once

#include <QFile>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/prctl.h>
#include <sys/types.h>

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

    /// Keeps the bus from reading and answering anything until `resume`.
    void freeze() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGSTOP); }
    void resume() { ::kill(static_cast<pid_t>(daemon_.processId()), SIGCONT); }

private:
    [[nodiscard]] QString socket() const { return folder_.filePath("bus"); }

    QTemporaryDir folder_;
    QProcess daemon_;
};

} // namespace zarvil
