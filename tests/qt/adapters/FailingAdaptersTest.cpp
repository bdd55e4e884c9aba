#include "EventWait.h"
#include "FailingCalls.h"
#include "PaneOnFakes.h"
#include "PrivateBus.h"
#include "bus/DBusMessageCenter.h"
#include "bus/DBusValues.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"
#include "qt/adapters/QtWorkspace.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace zarvil {
namespace {

using namespace failing;

constexpr Errors opening{EMFILE, EACCES, ENOSPC, EROFS};
constexpr Errors connecting{ECONNREFUSED, EAGAIN, EACCES, ENOENT};
constexpr Errors sending{EPIPE, ECONNRESET, EAGAIN, EINTR};
constexpr Errors receiving{ECONNRESET, EAGAIN, EINTR, ENOMEM};

std::array<std::atomic<bool>, 1024> spared; ///< files of the other side, by number
std::atomic<bool> sparing{false};

bool isSpared(int file) { return file < 0 || spared.at(static_cast<std::size_t>(file)); }

/// Pipes and event counters between threads do not fail.
bool isFile(int file) {
    struct stat status {};
    return ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
}

template <typename Call>
Call* next(const char* name) {
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

} // namespace
} // namespace zarvil

// A program's functions go before those of the system in the libraries that it loads.
#define ZARVIL_FAILING(result, name, errors, isMet, parameters, arguments)                         \
    __attribute__((visibility("default"))) result name parameters {                                \
        static const auto real = zarvil::next<result parameters>(#name);                           \
        return (isMet) && zarvil::failing::fails(#name, zarvil::errors) ? -1 : real arguments;     \
    }

// NOLINTBEGIN: the names and the variable arguments are those of the system.
extern "C" {

ZARVIL_FAILING(ssize_t, write, writing, zarvil::isFile(file),
               (int file, const void* bytes, std::size_t count), (file, bytes, count))
ZARVIL_FAILING(int, pipe2, starting, true, (int* ends, int flags), (ends, flags))
ZARVIL_FAILING(pid_t, fork, starting, true, (), ())
ZARVIL_FAILING(ssize_t, send, sending, !zarvil::isSpared(file),
               (int file, const void* bytes, std::size_t count, int flags),
               (file, bytes, count, flags))
ZARVIL_FAILING(ssize_t, sendmsg, sending, !zarvil::isSpared(file),
               (int file, const msghdr* message, int flags), (file, message, flags))
ZARVIL_FAILING(ssize_t, recvmsg, receiving, !zarvil::isSpared(file),
               (int file, msghdr* message, int flags), (file, message, flags))
ZARVIL_FAILING(ssize_t, read, reading, zarvil::isFile(file),
               (int file, void* bytes, std::size_t count), (file, bytes, count))
ZARVIL_FAILING(int, connect, connecting, !zarvil::isSpared(file),
               (int file, const sockaddr* address, socklen_t length), (file, address, length))

__attribute__((visibility("default"))) int socket(int domain, int type, int protocol) {
    static const auto real = zarvil::next<int(int, int, int)>("socket");
    if (!zarvil::sparing && zarvil::failing::fails("socket", zarvil::starting))
        return -1;
    const int file = real(domain, type, protocol);
    if (file >= 0)
        zarvil::spared.at(static_cast<std::size_t>(file)) = zarvil::sparing.load();
    return file;
}

__attribute__((visibility("default"))) int open64(const char* path, int flags, ...) {
    static const auto real = zarvil::next<int(const char*, int, ...)>("open64");
    std::va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return zarvil::failing::fails("open64", zarvil::opening) ? -1 : real(path, flags, mode);
}
}
// NOLINTEND

namespace zarvil {
namespace {

/// Tries with the n-th call failing, for every n that is reached, and every error.
template <typename Try>
int eachFailure(Try attempt) {
    int failures = 0;
    for (int error = 0; error < failing::errorsOfACall; ++error) {
        std::string failed = "first";
        for (int call = 1; !failed.empty(); ++call) {
            SCOPED_TRACE("call " + std::to_string(call) + ", error " + std::to_string(error));
            failed = attempt(call, error);
            EXPECT_FALSE(testing::Test::HasFailure()) << failed;
            if (testing::Test::HasFailure())
                return failures;
            failures += failed.empty() ? 0 : 1;
        }
    }
    testing::Test::RecordProperty("failures", failures);
    return failures;
}

TEST(FailingAdapters, anApplicationIsStartedOrSaidNotToBe) {
    const QTemporaryDir folder;
    const QString started = folder.filePath("started");
    const QString application = folder.filePath("One.app");
    QDir().mkpath(application);
    QFile program(application + "/One");
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n>'" + started.toUtf8() + "'\n");
    program.setPermissions(program.permissions() | QFile::ExeOwner);
    program.close();
    BusConnection nobody{BusOptions()};
    QtWorkspace workspace(nobody);
    const int failures = eachFailure([&](int call, int error) {
        QFile::remove(started);
        failing::arm(call, error);
        const bool isSaid = workspace.launchApplication(application.toStdString());
        const std::string failed = failing::disarm();
        EXPECT_TRUE(isSaid || !failed.empty());
        if (isSaid)
            EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(started); }, 10'000));
        else
            EXPECT_FALSE(QFile::exists(started));
        return failed;
    });
    EXPECT_GT(failures, 4);
}

/// Another process as far as failures go: answers pings, keeps a setting.
class Agent final : public QObject {
    Q_OBJECT

public:
    explicit Agent(PrivateBus& bus) {
        sparing = true;
        connection_ = bus.connect("agent");
        sparing = false;
        EXPECT_TRUE(connection_.registerService(bus::agentName));
        for (const auto& name : {message::ping, message::prefsLoaded, message::prefsChanged})
            connection_.connect(QString(), bus::path, bus::interface, QString::fromUtf8(name), this,
                                SLOT(hear(QDBusMessage)));
        connection_.call(busCall("GetId"));
    }
    bool stored = false;

private Q_SLOTS:
    void hear(const QDBusMessage& heard) {
        if (heard.member() == QString::fromUtf8(message::ping))
            say(message::pingAnswer, {});
        else if (heard.member() == QString::fromUtf8(message::prefsChanged))
            stored = decodePayload(heard)->boolForKey("prefObj");
        else {
            say(message::savedPrefs, {{"LaunchAtLogin", stored}});
            say(message::stateChanged, {{"state", true}});
        }
    }

private:
    void say(std::string_view name, const QVariantMap& info) {
        auto signal =
            QDBusMessage::createSignal(bus::path, bus::interface, QString::fromUtf8(name));
        connection_.send(signal << info);
    }

    QDBusConnection connection_{QString()};
};

struct PaneOnBus : PaneOnFakes {
    explicit PaneOnBus(const PrivateBus& on) : connection(on.options()) {
        real.launchAtLogin.setAction("setShouldLaunchAtLogin:");
        real.mainViewDidLoad();
        real.willSelect();
    }
    /// Its own time goes on until it is so.
    template <typename Condition>
    [[nodiscard]] bool comesTo(Condition condition) {
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, [this] { time.advance(0.01); });
        clock.start(1);
        return waitFor(condition);
    }

    BusConnection connection;
    DBusMessageCenter center{connection, bus::agentName};
    QtWorkspace session{connection};
    Platform onBus{handlers,     center,        time,    time, session, disk,      defaults, errors,
                   scriptRunner, authorization, strings, {},   modal,   processes, "",       "."};
    Zarvil_Preferences real{onBus};
};

TEST(FailingAdapters, thePaneIsRightAgainAfterAnyCallOnTheBus) {
    PrivateBus bus;
    Agent agent(bus);
    const int failures = eachFailure([&](int call, int error) {
        failing::arm(call, error);
        PaneOnBus pane(bus);
        const auto isReady = [&] { return pane.real.launchAtLogin.isEnabled(); };
        EXPECT_TRUE(pane.comesTo(isReady));
        pane.real.launchAtLogin.performClick();
        const auto running = pane.session.runningApplications();
        EXPECT_TRUE(running.empty() || running[0].bundleIdentifier == bus::agentName);
        EXPECT_TRUE(pane.comesTo(
            [&] { return isReady() && pane.real.launchAtLogin.isOn() == agent.stored; }));
        const std::string failed = failing::disarm();
        const bool wanted = !agent.stored;
        EXPECT_TRUE(pane.comesTo([&] {
            if (isReady() && pane.real.launchAtLogin.isOn() != wanted)
                pane.real.launchAtLogin.performClick();
            return agent.stored == wanted;
        }));
        EXPECT_TRUE(pane.errors.presented.empty());
        return failed;
    });
    EXPECT_GT(failures, 40);
}

} // namespace
} // namespace zarvil

#include "FailingAdaptersTest.moc"
