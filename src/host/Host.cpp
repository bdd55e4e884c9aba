#include "host/Host.h"

#include "bus/BusProbe.h"
#include "host/Failure.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace zarvil::host {

namespace {

QString settingsFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + '/' +
           QString::fromLatin1(product::maker.data(), product::maker.size()) + '/' + bus::hostName +
           ".ini";
}

int exitCodeOf(const BundleFailure& failure) {
    return failure.fault == BundleFault::NotFound ? exitCode::noPane : exitCode::brokenPane;
}

int fail(const BundleFailure& failure) {
    showFailure(failure.message);
    return exitCodeOf(failure);
}

int failWithoutPanes() {
    showFailure(QCoreApplication::translate(
                    "Host", "There is no preference pane in \"%1\" and none in \"%2\".")
                    .arg(bundleFolders().at(0), bundleFolders().at(1)));
    return exitCode::noPane;
}

bool isBroken(const BundleOutcome& bundle) { return std::holds_alternative<BundleFailure>(bundle); }

} // namespace

Host::Host(const CommandLine& commandLine)
    : commandLine_(commandLine),
      settings_(settingsFile(), QSettings::IniFormat),
      appearance_(commandLine.appearance, settings_),
      session_(instance_.claiming(BusConnection::sessionBus())) {}

std::vector<BundleOutcome> Host::bundles() const {
    if (!commandLine_.bundle.isEmpty())
        return {readBundle(commandLine_.bundle)};
    return findBundles(bundleFolders());
}

int Host::run() {
    session_.start();
    const auto found = bundles();
    if (found.empty())
        return failWithoutPanes();
    if (std::ranges::all_of(found, isBroken))
        return fail(std::get<BundleFailure>(found.front()));
    for (const auto& bundle : found)
        if (isBroken(bundle))
            logFailure(std::get<BundleFailure>(bundle).message);
    return runWindow(found);
}

int Host::runWindow(const std::vector<BundleOutcome>& bundles) {
    window_ = std::make_unique<HostWindow>(bundles, commandLine_.root, settings_);
    QObject::connect(window_.get(), &HostWindow::closed, [] { QCoreApplication::exit(); });
    QObject::connect(&signals_, &UnixSignals::endRequested, window_.get(),
                     &HostWindow::closeRegardless);
    QObject::connect(&instance_, &SingleInstance::activated, window_.get(),
                     &HostWindow::raiseToUser);
    QObject::connect(&instance_, &SingleInstance::decided, window_.get(),
                     [this] { standingDecided(); });
    // A bus in health answers within a few milliseconds, and a second instance then shows nothing.
    // After that the window comes up all the same, and goes again if it must.
    constexpr std::chrono::milliseconds answerLimit{25};
    [[maybe_unused]] const auto bus = session_.wait(answerLimit);
    if (instance_.standing() == SingleInstance::Standing::Second)
        return yieldToFirst();
    if (const auto failure = window_->open())
        return fail(*failure);
    appearance_.follow(session_);
    const int code = QApplication::exec();
    window_.reset();
    return code;
}

void Host::standingDecided() {
    if (instance_.standing() == SingleInstance::Standing::NoBus)
        logFailure(QCoreApplication::translate(
            "Host", "There is no session bus: the agent cannot be reached, and a second start "
                    "shows a second window."));
    if (instance_.standing() == SingleInstance::Standing::Second) {
        const int code = yieldToFirst();
        window_->closeRegardless();
        QCoreApplication::exit(code);
    }
}

int Host::yieldToFirst() {
    constexpr std::chrono::seconds limit{5};
    const auto bus = session_.wait(limit);
    if (bus && SingleInstance::raiseFirst(*bus))
        return exitCode::success;
    showFailure(QCoreApplication::translate(
        "Host", "The preferences are open already, but their window does not answer."));
    return exitCode::unavailable;
}

namespace {

QStringList argumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    return arguments;
}

int failUsage(const UsageError& error) {
    logFailure(error.message);
    logFailure(QStringLiteral("try --help"));
    return exitCode::usage;
}

int print(const QString& text) {
    std::fputs(qPrintable(text), stdout);
    return exitCode::success;
}

/// Qt connects to the session bus while it makes the application object.
void avoidHungBus() {
    constexpr std::chrono::seconds limit{2};
    if (busAnswers(sessionBusAddress(), limit))
        return;
    logFailure(QStringLiteral("The session bus does not answer; going on without it."));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

int runOnDisplay(const CommandLine& commandLine, char** argv) {
    avoidHungBus();
    // Qt is shown the program's name alone: the options are ours.
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    QApplication::setApplicationVersion(ZARVIL_VERSION);
    QApplication::setApplicationName("zarvil-preferences");
    QGuiApplication::setDesktopFileName(bus::hostName);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const int code = Host(commandLine).run();
    if (BusConnection::anyHangs()) {
        std::fflush(nullptr);
        std::_Exit(code);
    }
    return code;
}

} // namespace

int runHost(int argc, char** argv) {
    const auto parsed =
        parseCommandLine(argumentsOf(argc, argv), qEnvironmentVariable("ZARVIL_APPEARANCE"));
    if (const auto* error = std::get_if<UsageError>(&parsed))
        return failUsage(*error);
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (commandLine.wish == CommandLine::Wish::Help) {
        const QCoreApplication application(argc, argv);
        return print(helpText());
    }
    if (commandLine.wish == CommandLine::Wish::Version)
        return print(QStringLiteral("zarvil-preferences " ZARVIL_VERSION "\n"));
    if (!hasDisplay()) {
        logFailure(QStringLiteral("There is no display to show a window on."));
        return exitCode::unavailable;
    }
    // Panes keep files under it and count on it, though nothing else here makes it. Without it a
    // pane tells of the failure itself.
    QDir::home().mkpath(QStringLiteral("Library"));
    return runOnDisplay(commandLine, argv);
}

} // namespace zarvil::host
