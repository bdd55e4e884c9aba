#include "Bundles.h"
#include "PrivateBus.h"
#include "host/UnixSignals.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <cerrno>
#include <csignal>

namespace zarvil::host {
namespace {

constexpr int limit = 20'000; // milliseconds

/// The real program, off-screen, with a home and a bus of its own.
class HostProcessTest : public Bundles {
protected:
    HostProcessTest() {
        environment.insert("HOME", path("home"));
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    }

    std::unique_ptr<QProcess> start(const QStringList& arguments) const {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(HOST_PROGRAM, arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    struct Outcome {
        int code;
        QString out, err;
    };
    Outcome run(const QStringList& arguments) const {
        const auto process = start(arguments);
        EXPECT_TRUE(process->waitForFinished(limit)) << arguments.join(' ').toStdString();
        EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
        return {process->exitCode(), process->readAllStandardOutput(),
                process->readAllStandardError()};
    }
    /// Waits for a call of the sample pane, and forgets those before it.
    bool isCalled(const QString& call) const {
        QStringList seen;
        return QTest::qWaitFor([&] { return (seen += calls()).contains(call); }, limit);
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(HostProcessTest, saysWhatItCanDoWithoutADisplay) {
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(name);
    EXPECT_TRUE(run({"--help"}).out.contains(path("home/Library/PreferencePanes")));
    EXPECT_TRUE(run({"--version"}).out.startsWith("zarvil-preferences "));
    EXPECT_EQ(run({"--root", "/nonexistent"}).code, 64);
    const auto outcome = run({});
    EXPECT_EQ(outcome.code, 69);
    EXPECT_TRUE(outcome.err.contains("no display"));
    environment.insert("DISPLAY", ":54321");
    for (const char* platform : {"", "xcb"}) {
        environment.insert("QT_QPA_PLATFORM", platform);
        const auto unserved = run({});
        EXPECT_EQ(unserved.code, 69);
        EXPECT_EQ(unserved.err.count('\n'), 1) << unserved.err.toStdString();
        EXPECT_TRUE(unserved.err.contains("\":54321\""));
    }
}

TEST_F(HostProcessTest, missingAndBrokenPanesHaveExitCodes) {
    const auto none = run({});
    EXPECT_EQ(none.code, 66);
    EXPECT_TRUE(none.err.contains(path("home/Library/PreferencePanes")));
    const auto missing = run({path("missing.prefPane")});
    EXPECT_EQ(missing.code, 66);
    EXPECT_TRUE(missing.err.contains("does not exist"));
    write("home/Library/PreferencePanes/Broken.prefPane/Contents/Info.json", "{");
    const auto broken = run({});
    EXPECT_EQ(broken.code, 65);
    EXPECT_TRUE(broken.err.contains("not valid JSON"));
    write(QFileInfo(makeBundle("Bad")).fileName(), "");
    write("panes/Bad.prefPane/Contents/libsample.so", "no library");
    EXPECT_EQ(run({path("panes/Bad.prefPane")}).code, 65);
}

TEST_F(HostProcessTest, runsWithoutABusAndEndsCleanlyOnASignal) {
    makeBundle("A", "home/Library/PreferencePanes");
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const auto process = start({"--root", path("home")});
        ASSERT_TRUE(isCalled("A: willSelect"));
        QFile status(QStringLiteral("/proc/%1/status").arg(process->processId()));
        ASSERT_TRUE(status.open(QIODevice::ReadOnly));
        // What it ignored or blocked, the programs that it starts would too.
        const QByteArray state = status.readAll();
        for (const char* mask : {"SigIgn", "SigBlk"})
            EXPECT_TRUE(state.contains(QByteArray(mask) + ":\t0000000000000000")) << mask;
        ASSERT_EQ(kill(static_cast<pid_t>(process->processId()), number), 0);
        ASSERT_TRUE(process->waitForFinished(limit));
        EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process->exitCode(), 0);
        EXPECT_EQ(calls(), QStringList({"A: shouldUnselect", "A: willUnselect", "A: didUnselect",
                                        "A: gone"}));
    }
}

TEST_F(HostProcessTest, endsWithoutACrashWhereItsDisplayGoes) {
    QProcess display;
    display.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp", "-noreset"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return display.canReadLine(); }, limit));
    environment.insert("DISPLAY", ':' + display.readLine().trimmed());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    const auto process = start({makeBundle("A")});
    ASSERT_TRUE(isCalled("A: willSelect"));
    display.kill();
    ASSERT_TRUE(process->waitForFinished(limit));
    EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process->exitCode(), 69);
    EXPECT_TRUE(display.waitForFinished(limit));
}

TEST_F(HostProcessTest, aSecondStartRaisesTheFirstOrSaysOnceThatItHangs) {
    PrivateBus bus;
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    const auto first = start({makeBundle("A")});
    const QString second = makeBundle("B");
    ASSERT_TRUE(isCalled("A: willSelect"));
    // A bus that comes again finds the first instance again.
    for (const bool again : {false, true}) {
        if (again) {
            bus.stop();
            bus.start();
        }
        const auto watcher = bus.connect(QStringLiteral("watcher-%1").arg(again));
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                return watcher.interface()->isServiceRegistered("com.Tessrow.Preferences").value();
            },
            limit));
        EXPECT_EQ(run({second}).code, 0);
    }
    ::kill(static_cast<pid_t>(first->processId()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const auto outcome = run({second});
    EXPECT_EQ(outcome.code, 69);
    EXPECT_EQ(outcome.err.count("does not answer"), 1) << outcome.err.toStdString();
    EXPECT_LT(timer.elapsed(), 4000) << "one second and the start of a program on a busy machine";
    EXPECT_FALSE(calls().contains("B: mainViewDidLoad")) << "a second instance's pane lives";
    ::kill(static_cast<pid_t>(first->processId()), SIGCONT);
    first->terminate();
    EXPECT_TRUE(first->waitForFinished(limit));
}

TEST_F(HostProcessTest, aTabIsReachedByNameFromTheCommandLineAndFromTheDesktop) {
    PrivateBus bus;
    environment.insert("DBUS_SESSION_BUS_ADDRESS", bus.address());
    const QString pane = makeBundle("Tabbed");
    const auto unknown = run({"--tab", "none", pane});
    EXPECT_EQ(unknown.code, 64);
    EXPECT_TRUE(unknown.err.contains("first, second, third")) << unknown.err.toStdString();
    EXPECT_FALSE(calls().contains("Tabbed: willSelect"));

    // Started by the bus, it shows nothing until it is asked to.
    const auto first = start({"--service", pane});
    auto watcher = bus.connect("watcher");
    const auto ask = [&](const char* method, const QVariantList& arguments) {
        auto call =
            QDBusMessage::createMethodCall("com.Tessrow.Preferences", "/com/Tessrow/Preferences",
                                           "org.freedesktop.Application", method);
        call.setArguments(arguments);
        return watcher.call(call, QDBus::Block, limit).errorName();
    };
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return watcher.interface()->isServiceRegistered("com.Tessrow.Preferences").value(); },
        limit));
    EXPECT_FALSE(calls().contains("Tabbed: willSelect"));
    const QVariantMap none;
    EXPECT_EQ(ask("ActivateAction", {"second", QVariantList(), none}), "");
    EXPECT_TRUE(isCalled("Tabbed: SecondTab"));
    EXPECT_EQ(ask("ActivateAction", {"fourth", QVariantList(), none}),
              "org.freedesktop.DBus.Error.InvalidArgs");
    EXPECT_EQ(ask("Open", {QStringList("file:///nothing"), none}), "");
    EXPECT_EQ(run({"--tab", "Third", pane}).code, 0);
    EXPECT_TRUE(isCalled("Tabbed: ThirdTab"));
    first->terminate();
    EXPECT_TRUE(first->waitForFinished(limit));
    // The tab that the command line names wins over the one shown last.
    const auto again = start({"--tab", "second", pane});
    EXPECT_TRUE(isCalled("Tabbed: SecondTab, hidden"));
    again->terminate();
    EXPECT_TRUE(again->waitForFinished(limit));
}

TEST_F(HostProcessTest, aDiagnosisTellsWhatRunsAndKeepsSecrets) {
    PrivateBus bus;
    environment.insert("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    write("home/Library/Zarvil Scripts/secret title.zvscript", "secret text");
    makeBundle("A", "home/Library/PreferencePanes");
    // Without a bus, with one that works and with one that hangs.
    const struct {
        QString address;
        bool hangs;
        QString says;
    } cases[] = {{"unix:path=/nonexistent/bus", false, "session bus      none"},
                 {bus.address(), false, "com.Tessrow.Zarvil is not running"},
                 {bus.address(), true, "session bus      none"}};
    for (const auto& row : cases) {
        environment.insert("DBUS_SESSION_BUS_ADDRESS", row.address);
        if (row.hangs)
            bus.freeze();
        const auto outcome = run({"--diagnose"});
        EXPECT_EQ(outcome.code, 0);
        for (const QString& part : {row.says, QStringLiteral("A 1 in ~/Library/PreferencePanes"),
                                    QStringLiteral("1 in ~/Library/Zarvil Scripts, writable"),
                                    QStringLiteral("Zarvil.app is not installed")})
            EXPECT_TRUE(outcome.out.contains(part)) << part.toStdString() << "\nin\n"
                                                    << outcome.out.toStdString();
        for (const QString& secret : {QStringLiteral("secret"), path("home"), row.address})
            EXPECT_FALSE(outcome.out.contains(secret)) << outcome.out.toStdString();
    }
}

TEST(UnixSignalsTest, aSignalLeavesTheErrorNumberOfWhatItInterrupts) {
    UnixSignals watcher;
    // More than the way to the event loop can take.
    for (int count = 0; count < 100'000; ++count) {
        errno = ENOENT;
        std::raise(SIGHUP);
        ASSERT_EQ(errno, ENOENT) << count;
    }
}

} // namespace
} // namespace zarvil::host
