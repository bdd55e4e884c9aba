#pragma once

#include "bus/BusConnection.h"

#include <QByteArrayList>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace zarvil {

/// A message bus of the test's own, listening in a temporary folder: in health, hung (`freeze`) or
/// absent (`stop`). Ends with its owner, even when that crashes. The thread sanitizer does not
/// survive QProcess of Qt as it is delivered, so the system starts it.
class PrivateBus {
public:
    PrivateBus() { start(); }
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
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe2(pipe.data(), O_CLOEXEC), 0);
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_adddup2(&files, pipe[1], STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        QByteArrayList words{"setpriv",
                             "--pdeathsig",
                             "KILL",
                             "dbus-daemon",
                             "--session",
                             "--nofork",
                             "--print-address",
                             "--address=" + address().toUtf8()};
        std::vector<char*> arguments;
        for (QByteArray& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        EXPECT_EQ(
            ::posix_spawnp(&daemon_, arguments[0], &files, nullptr, arguments.data(), environ), 0);
        posix_spawn_file_actions_destroy(&files);
        ::close(pipe[1]);
        QFile said;
        EXPECT_TRUE(said.open(pipe[0], QIODevice::ReadOnly, QFile::AutoCloseHandle));
        EXPECT_TRUE(said.readLine().startsWith("unix:")) << "the bus does not start";
    }

    void stop() {
        if (daemon_ <= 0)
            return;
        ::kill(daemon_, SIGKILL);
        while (::waitpid(daemon_, nullptr, 0) < 0 && errno == EINTR) {
        }
        daemon_ = 0;
        QFile::remove(socket());
    }

    /// Keeps the bus from reading and answering anything until `resume`; it takes connections.
    void freeze() { ::kill(daemon_, SIGSTOP); }
    void resume() { ::kill(daemon_, SIGCONT); }

private:
    [[nodiscard]] QString socket() const { return folder_.filePath("bus"); }

    QTemporaryDir folder_;
    pid_t daemon_ = 0;
    QStringList connections_;
};

} // namespace zarvil
