#include "host/Program.h"

#include "bus/BusProbe.h"
#include "host/Diagnosis.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "protocol/BusNames.h"
#include "protocol/NonCopyable.h"
#include "qt/translation/Translation.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace zarvil::host {

namespace {

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    return arguments;
}

int print(const QString& text) {
    std::fputs(qPrintable(text), stdout);
    return exitCode::success;
}

/// Qt connects to the session bus, at the latest when its accessibility first looks for it, and a
/// bus that hangs would keep the main thread waiting for half a minute. So Qt's own connection,
/// which it never makes again, is made to fail here; ours goes on trying.
class HungBusHidden : NonCopyable {
public:
    HungBusHidden() { qputenv(variable, "disabled:"); }
    /// Needs the application object.
    ~HungBusHidden() {
        [[maybe_unused]] const auto failed = QDBusConnection::sessionBus();
        if (address_.isEmpty())
            qunsetenv(variable);
        else
            qputenv(variable, address_);
    }

private:
    static constexpr const char* variable = "DBUS_SESSION_BUS_ADDRESS";
    QByteArray address_ = qgetenv(variable);
};

/// Qt lists the fonts beside the main thread while it lives. Needs the application object.
class FontListing : NonCopyable {
public:
    explicit FontListing(FontThread& thread) : thread_(thread) {
        thread_.begin([] { QFontDatabase::families(); });
    }
    ~FontListing() { thread_.await(); }

private:
    FontThread& thread_;
};

/// Where its display goes, Qt ends the process by `exit`, in the midst of whatever it does. The
/// libraries' ends would then take a pane apart that lacks Qt already. Heeded on the thread that
/// made it, while it lives.
class DisplayLoss : NonCopyable {
public:
    DisplayLoss() { exit().isHeeded = true; }
    ~DisplayLoss() { exit().isHeeded = false; }

private:
    /// What belongs to the thread that exits goes before anything else does.
    struct Exit {
        ~Exit() {
            if (!isHeeded)
                return;
            std::fflush(nullptr);
            std::_Exit(exitCode::unavailable);
        }
        bool isHeeded = false;
    };

    static Exit& exit() {
        static thread_local Exit ofThisThread;
        return ofThisThread;
    }
};

/// For the last value before the program's end.
int endDespiteHangs(int code) {
    if (BusConnection::anyHangs()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}

int runOnDisplay(const CommandLine& commandLine, char** argv, FontThread& fonts) {
    if (const auto fault = displayFault()) {
        logFailure(*fault);
        return exitCode::unavailable;
    }
    // Panes keep files under it and count on it, though nothing else here makes it. Without it a
    // pane tells of the failure itself.
    QDir::home().mkpath(QStringLiteral("Library"));
    constexpr std::chrono::milliseconds limit{500};
    std::optional<HungBusHidden> hidden;
    if (!busAnswers(sessionBusAddress(), limit)) {
        fonts.await(); // which reads the environment, which changes now
        hidden.emplace();
    }
    // Qt takes it out of the environment, which they may be reading yet.
    if (qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"))
        fonts.await();
    // Qt is shown the program's name alone: the options are ours.
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    const DisplayLoss loss;
    hidden.reset();
    const qt::Translation translation(QCoreApplication::applicationDirPath() +
                                          QStringLiteral("/" ZARVIL_TEXTS_FROM_PROGRAM),
                                      qt::Translation::Toolkit::Adopted);
    const FontListing listing(fonts);
    QApplication::setApplicationVersion(ZARVIL_VERSION);
    QApplication::setApplicationName("zarvil-preferences");
    QGuiApplication::setDesktopFileName(bus::hostName);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return endDespiteHangs(Host(commandLine).run());
}

int run(int argc, char** argv, FontThread& fonts) {
    const auto parsed =
        parseCommandLine(argumentsOf(argc, argv), qEnvironmentVariable("ZARVIL_APPEARANCE"));
    if (const auto* error = std::get_if<UsageError>(&parsed))
        return failUsage(error->message);
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (commandLine.wish == CommandLine::Wish::Help) {
        const QCoreApplication application(argc, argv);
        return print(helpText());
    }
    if (commandLine.wish == CommandLine::Wish::Version)
        return print(QStringLiteral("zarvil-preferences " ZARVIL_VERSION "\n"));
    if (commandLine.wish == CommandLine::Wish::Diagnose) {
        QCoreApplication application(argc, argv);
        return endDespiteHangs(diagnose(commandLine));
    }
    return runOnDisplay(commandLine, argv, fonts);
}

} // namespace

} // namespace zarvil::host

int zarvilRunProgram(int argc, char** argv, zarvil::FontThread& fonts) {
    return zarvil::host::run(argc, argv, fonts);
}
