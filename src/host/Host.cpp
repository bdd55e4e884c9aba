#include "host/Host.h"

#include "host/Failure.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"

#include <QApplication>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

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
    // Before the pane is loaded the bus has mostly answered already; if not, the window comes up
    // all the same and a second instance goes again.
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

int runHost(int argc, char** argv) {
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    const auto parsed = parseCommandLine(arguments, qEnvironmentVariable("ZARVIL_APPEARANCE"));
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        logFailure(error->message);
        logFailure(QStringLiteral("try --help"));
        return exitCode::usage;
    }
    const auto& commandLine = std::get<CommandLine>(parsed);
    if (commandLine.wish != CommandLine::Wish::Run) {
        std::fputs(commandLine.wish == CommandLine::Wish::Help
                       ? qPrintable(helpText())
                       : "zarvil-preferences " ZARVIL_VERSION "\n",
                   stdout);
        return exitCode::success;
    }
    if (!hasDisplay()) {
        logFailure(QStringLiteral("there is no display to show a window on"));
        return exitCode::unavailable;
    }
    // Qt is shown the program's name alone: the options are ours.
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    QApplication::setApplicationVersion(ZARVIL_VERSION);
    QApplication::setApplicationName("zarvil-preferences");
    QGuiApplication::setDesktopFileName(bus::hostName);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return Host(commandLine).run();
}

} // namespace zarvil::host
