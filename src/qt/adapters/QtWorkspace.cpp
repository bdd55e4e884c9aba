#include "qt/adapters/QtWorkspace.h"

#include "bus/BusDaemon.h"
#include "bus/MessageBus.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QUrl>

#include <chrono>

namespace zarvil {

namespace {

Q_LOGGING_CATEGORY(workspaceLog, "zarvil.workspace", QtInfoMsg)

constexpr int answerLimit = 1000; // milliseconds
constexpr std::chrono::milliseconds connectLimit{1000};

QString executableOf(const QString& bundle) {
    const QString name = QFileInfo(bundle).completeBaseName();
    for (const QString& place : {QStringLiteral("/"), QStringLiteral("/Contents/MacOS/")}) {
        const QFileInfo candidate(bundle + place + name);
        if (candidate.isFile() && candidate.isExecutable())
            return candidate.absoluteFilePath();
    }
    return {};
}

/// Empty for an application whose identifier is not known without its bundle.
QString identifierOf(const QString& bundle) {
    const bool isAgent = bundle.endsWith(QString::fromUtf8(product::agentApplication));
    return isAgent ? QString::fromUtf8(product::agentIdentifier) : QString();
}

} // namespace

bool QtWorkspace::canLaunchApplication(std::string_view path) const {
    const QString bundle = QString::fromUtf8(path);
    if (QFileInfo::exists(bundle))
        return !executableOf(bundle).isEmpty();
    const auto& bus = session_.connection();
    return bus && isActivatable(*bus, identifierOf(bundle), answerLimit);
}

bool QtWorkspace::launchApplication(std::string_view path) {
    const QString bundle = QString::fromUtf8(path);
    if (!QFileInfo::exists(bundle))
        return activate(identifierOf(bundle));
    const QString executable = executableOf(bundle);
    if (executable.isEmpty()) {
        qCWarning(workspaceLog).noquote() << "No executable in the application" << bundle;
        return false;
    }
    return QProcess::startDetached(executable, {}, QDir::homePath());
}

bool QtWorkspace::activate(const QString& identifier) {
    if (identifier.isEmpty())
        return false;
    const auto& bus = session_.wait(connectLimit);
    return bus && bus->send(busCall("StartServiceByName", {identifier, 0U}));
}

std::vector<RunningApplication> QtWorkspace::runningApplications() const {
    std::vector<RunningApplication> running;
    if (const auto& bus = session_.wait(connectLimit))
        for (const auto& [name, process] : ownedNames(*bus, answerLimit))
            running.push_back({name.toStdString(), process});
    return running;
}

std::string QtWorkspace::mainBundleIdentifier() const { return bus::hostName; }

bool QtWorkspace::openURL(std::string_view url) {
    const QUrl address(QString::fromUtf8(url), QUrl::StrictMode);
    return address.isValid() && QDesktopServices::openUrl(address);
}

} // namespace zarvil
