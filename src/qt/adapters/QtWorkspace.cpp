#include "qt/adapters/QtWorkspace.h"

#include "bus/BusConnection.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>
#include <QtDebug>

#include <chrono>
#include <utility>

namespace zarvil {

namespace {

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

QDBusMessage busCall(const QString& method, const QVariantList& arguments = {}) {
    auto call = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                               "org.freedesktop.DBus", method);
    call.setArguments(arguments);
    return call;
}

bool isApplicationName(const QString& name) {
    return !name.startsWith(':') && name != QLatin1String("org.freedesktop.DBus");
}

} // namespace

bool QtWorkspace::launchApplication(std::string_view path) {
    const QString bundle = QString::fromUtf8(path);
    if (!QFileInfo::exists(bundle))
        return activate(identifierOf(bundle));
    const QString executable = executableOf(bundle);
    if (executable.isEmpty()) {
        qWarning().noquote() << "No executable in the application" << bundle;
        return false;
    }
    return QProcess::startDetached(executable, {}, QDir::homePath());
}

bool QtWorkspace::activate(const QString& identifier) {
    const auto bus = identifier.isEmpty() ? std::nullopt : session_.wait(connectLimit);
    return bus && bus->send(busCall("StartServiceByName", {identifier, 0U}));
}

std::vector<RunningApplication> QtWorkspace::runningApplications() const {
    const auto bus = session_.wait(connectLimit);
    if (!bus)
        return {};
    const QDBusReply<QStringList> names =
        bus->call(busCall("ListNames"), QDBus::Block, answerLimit);
    // All questions go out before the first answer is waited for, so that the limits do not add up.
    std::vector<std::pair<QString, QDBusPendingReply<uint>>> answers;
    for (const QString& name : names.value())
        if (isApplicationName(name))
            answers.emplace_back(
                name, bus->asyncCall(busCall("GetConnectionUnixProcessID", {name}), answerLimit));
    std::vector<RunningApplication> running;
    for (auto& [name, processIdentifier] : answers) {
        processIdentifier.waitForFinished();
        if (processIdentifier.isValid())
            running.push_back({name.toStdString(), processIdentifier.value()});
    }
    return running;
}

std::string QtWorkspace::mainBundleIdentifier() const { return bus::hostName; }

bool QtWorkspace::openURL(std::string_view url) {
    const QUrl address(QString::fromUtf8(url), QUrl::StrictMode);
    return address.isValid() && QDesktopServices::openUrl(address);
}

} // namespace zarvil
