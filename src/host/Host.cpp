#include "host/Host.h"

#include "host/Activation.h"
#include "host/Failure.h"
#include "host/Log.h"
#include "host/Program.h"
#include "host/Tabs.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <optional>
#include <utility>

namespace zarvil::host {

Q_LOGGING_CATEGORY(hostLog, "zarvil.host", QtInfoMsg)

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

int failTab(const QString& name, const QStringList& known) {
    const QString offer = known.isEmpty() ? QStringLiteral("the pane has no named tabs")
                                          : "there are " + known.join(QLatin1String(", "));
    return failUsage(QStringLiteral("--tab: there is no tab \"%1\"; %2").arg(name, offer));
}

BusOptions sessionBusFor(const SingleInstance& instance) {
    BusOptions options = BusOptions::sessionBus();
    options.join = instance.claim();
    return options;
}

bool isBroken(const BundleOutcome& bundle) { return std::holds_alternative<BundleFailure>(bundle); }

} // namespace

Host::Host(const CommandLine& commandLine)
    : commandLine_(commandLine),
      settings_(QFile::encodeName(settingsFile()).toStdString(),
                [] {
                    qCWarning(hostLog).noquote() << "What the window remembers cannot be read or "
                                                    "written:"
                                                 << settingsFile();
                }),
      appearance_(commandLine.appearance, settings_),
      session_(sessionBusFor(instance_)) {}

std::vector<BundleOutcome> Host::bundles() const {
    if (!commandLine_.bundle.isEmpty())
        return {readBundle(commandLine_.bundle)};
    return findBundles(bundleFolders());
}

int Host::run() {
    const auto found = bundles();
    if (found.empty())
        return failWithoutPanes();
    if (std::ranges::all_of(found, isBroken))
        return fail(std::get<BundleFailure>(found.front()));
    for (const auto& bundle : found)
        if (isBroken(bundle))
            logFailure(std::get<BundleFailure>(bundle).message);
        else
            qCDebug(hostLog).noquote() << "Found the pane" << std::get<Bundle>(bundle).path;
    return runWindow(found);
}

int Host::runWindow(const std::vector<BundleOutcome>& bundles) {
    makeWindow(bundles);
    auto failure = window_->prepare();
    const QStringList tabs = tabNames(*window_);
    if (const QString& tab = commandLine_.tab;
        !failure && !tab.isEmpty() && !tabs.contains(tab, Qt::CaseInsensitive))
        return failTab(tab, tabs);
    // A bus in health has answered by now, and a second instance shows nothing. Otherwise the
    // window comes up all the same, and goes again if it must.
    constexpr std::chrono::milliseconds answerLimit{25};
    session_.wait(answerLimit);
    const Subscription watching = session_.observe([this](BusState state) { busChanged(state); });
    if (!yielding_) {
        if (!failure)
            failure = showAtStart();
        if (failure)
            return fail(*failure);
    }
    const int code = QApplication::exec();
    window_.reset();
    if (failure_)
        return fail(*failure_);
    if (code == exitCode::usage)
        return failTab(commandLine_.tab, tabs);
    if (code == exitCode::unavailable)
        showFailure(QCoreApplication::translate(
            "Host", "The preferences are open already, but their window does not answer."));
    return code;
}

void Host::makeWindow(const std::vector<BundleOutcome>& bundles) {
    PaneOptions options;
    options.root = commandLine_.root;
    options.session = &session_;
    window_ = std::make_unique<HostWindow>(bundles, options, settings_);
    QObject::connect(window_.get(), &HostWindow::closed, [this] {
        if (!yielding_)
            QCoreApplication::exit();
    });
    QObject::connect(&signals_, &UnixSignals::endRequested, window_.get(),
                     &HostWindow::closeRegardless);
    serveOthers();
}

void Host::serveOthers() {
    QObject::connect(&instance_, &SingleInstance::activated, window_.get(), [this] {
        if (yielding_)
            return;
        if ((failure_ = show()))
            QCoreApplication::exit(exitCodeOf(*failure_));
    });
    instance_.setShowTab([this](const QString& name) { return turnToTab(*window_, name); });
}

std::optional<BundleFailure> Host::showAtStart() {
    if (!commandLine_.isService)
        return show();
    // Whoever had it started says at once what for.
    constexpr std::chrono::seconds patience{20};
    QTimer::singleShot(patience, window_.get(), [this] {
        if (!shown_)
            window_->closeRegardless();
    });
    return std::nullopt;
}

/// Opens the window, or brings it before the user.
std::optional<BundleFailure> Host::show() {
    if (std::exchange(shown_, true)) {
        if (window_->isVisible()) // otherwise it is just coming up
            bringToUser(*window_);
        return std::nullopt;
    }
    auto failure = window_->open(commandLine_.tab);
    if (!failure)
        appearance_.follow(session_);
    return failure;
}

/// A window that was opened for want of a bus stays, whoever owns the name once there is one.
void Host::busChanged(BusState state) {
    qCDebug(hostLog, "Session bus: %s",
            state == BusState::Connected    ? "connected"
            : state == BusState::Connecting ? "connecting"
                                            : qUtf8Printable(session_.error()));
    if (state == BusState::Connecting || std::exchange(decided_, true))
        return;
    if (session_.connection() && instance_.standing() == SingleInstance::Standing::Second)
        yieldToFirst();
}

void Host::yieldToFirst() {
    yielding_ = true;
    window_->closeRegardless();
    qCDebug(hostLog, "Another instance runs; it is asked to show itself");
    instance_.raiseFirst(
        *session_.connection(), commandLine_.tab, [](SingleInstance::FirstAnswer answer) {
            using Answer = SingleInstance::FirstAnswer;
            QCoreApplication::exit(answer == Answer::Shown       ? exitCode::success
                                   : answer == Answer::NoSuchTab ? exitCode::usage
                                                                 : exitCode::unavailable);
        });
}

} // namespace zarvil::host
