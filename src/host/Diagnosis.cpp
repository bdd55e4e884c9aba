#include "host/Diagnosis.h"

#include "bus/BusConnection.h"
#include "bus/BusDaemon.h"
#include "bus/BusProbe.h"
#include "bus/DBusMessageCenter.h"
#include "host/Bundle.h"
#include "host/CommandLine.h"
#include "host/Failure.h"
#include "interface/DisplayText.h"
#include "pane/Product.h"
#include "protocol/BusNames.h"
#include "protocol/Messages.h"
#include "scripts/ScriptFile.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusReply>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QSysInfo>
#include <QTimer>

#include <cstdio>

namespace zarvil::host {

namespace {

constexpr int callLimit = 2000; // milliseconds
constexpr const char* polkitName = "org.freedesktop.PolicyKit1";

QString text(std::string_view view) {
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

/// Fit for a terminal, and without the name of the user that a path may hold.
QString shown(QString value) {
    value.replace(QDir::homePath(), QStringLiteral("~"));
    return text(showableText(value.toStdString(), longestShownMessage));
}

void print(const char* subject, const QString& value) {
    std::printf("%-16s %s\n", subject, qPrintable(shown(value)));
    std::fflush(stdout);
}

QString inMilliseconds(const QElapsedTimer& timer) {
    return QStringLiteral("%1 ms").arg(static_cast<double>(timer.nsecsElapsed()) / 1e6, 0, 'f', 1);
}

QString setOr(const char* variable, const char* otherwise) {
    const QString value = qEnvironmentVariable(variable);
    return value.isEmpty() ? QString::fromLatin1(otherwise) : value;
}

void tellOfProgram() {
    print("program", QStringLiteral("zarvil-preferences " ZARVIL_VERSION));
    print("Qt", QStringLiteral("%1, built with %2").arg(qVersion(), QT_VERSION_STR));
    print("system", QStringLiteral("%1, %2 %3, %4")
                        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(),
                             QSysInfo::kernelVersion(), QSysInfo::currentCpuArchitecture()));
    print("desktop", QStringLiteral("%1, session %2, language %3")
                         .arg(setOr("XDG_CURRENT_DESKTOP", "unknown"),
                              setOr("XDG_SESSION_TYPE", "unknown"), QLocale().name()));
    print("display", displayFault().value_or(QStringLiteral("a window can be shown")));
}

QString inWords(const BundleOutcome& outcome) {
    if (const auto* failure = std::get_if<BundleFailure>(&outcome))
        return failure->message;
    const auto& bundle = std::get<Bundle>(outcome);
    return QStringLiteral("%1 %2 in %3").arg(bundle.name, bundle.version, bundle.path);
}

void tellOfPanes(const CommandLine& commandLine) {
    if (!commandLine.bundle.isEmpty()) {
        print("pane", inWords(readBundle(commandLine.bundle)));
        return;
    }
    for (const QString& folder : bundleFolders()) {
        const auto found = findBundles({folder});
        if (found.empty())
            print("pane", QStringLiteral("none in %1").arg(folder));
        for (const auto& outcome : found)
            print("pane", inWords(outcome));
    }
}

/// The bus's answer to a simple question, timed; none when there is no bus.
std::optional<QDBusConnection> tellOfBus(const char* subject, BusConnection& bus) {
    QEventLoop loop;
    bus.whenReady(&loop, [&loop](const QDBusConnection&) { loop.quit(); });
    loop.exec();
    if (!bus.connection()) {
        print(subject, QStringLiteral("none: %1").arg(bus.error()));
        return std::nullopt;
    }
    QElapsedTimer timer;
    timer.start();
    const QDBusMessage reply = bus.connection()->call(busCall("GetId"), QDBus::Block, callLimit);
    if (reply.type() == QDBusMessage::ErrorMessage)
        print(subject, QStringLiteral("does not answer: %1").arg(reply.errorName()));
    else
        print(subject, QStringLiteral("answers in %1").arg(inMilliseconds(timer)));
    return bus.connection();
}

/// Who owns a name: a process, nobody, or nobody yet.
QString ownerOf(const QDBusConnection& bus, const QString& name) {
    const QDBusReply<uint> process =
        bus.call(busCall("GetConnectionUnixProcessID", {name}), QDBus::Block, callLimit);
    if (process.isValid())
        return QStringLiteral("%1 is process %2").arg(name).arg(process.value());
    const QDBusReply<QStringList> startable =
        bus.call(busCall("ListActivatableNames"), QDBus::Block, callLimit);
    return name + (startable.value().contains(name)
                       ? QStringLiteral(" is not running; the bus can start it")
                       : QStringLiteral(" is not running"));
}

/// Whatever runs as the agent is pinged as the pane does it.
void tellOfAnswer(BusConnection& session) {
    DBusMessageCenter messages(session, bus::agentName);
    QEventLoop loop;
    QElapsedTimer timer;
    bool answered = false;
    const Subscription listening = messages.addObserver(message::pingAnswer, [&](const Message&) {
        answered = true;
        loop.quit();
    });
    timer.start();
    messages.post(Message(message::ping));
    QTimer::singleShot(callLimit, &loop, &QEventLoop::quit);
    loop.exec();
    print("agent", answered ? "answers a ping in " + inMilliseconds(timer)
                            : QStringLiteral("does not answer a ping within 2 s"));
}

void tellOfAgent(const CommandLine& commandLine, BusConnection& session) {
    const auto& bus = session.connection();
    const QString application = commandLine.root + text(product::agentApplication);
    print("agent",
          application + (QFileInfo::exists(application) ? " is installed" : " is not installed"));
    if (!bus)
        return;
    print("preferences", ownerOf(*bus, bus::hostName));
    print("agent", ownerOf(*bus, bus::agentName));
    if (QDBusReply<bool>(
            bus->call(busCall("NameHasOwner", {QString(bus::agentName)}), QDBus::Block, callLimit))
            .value())
        tellOfAnswer(session);
}

void tellOfScripts() {
    const QString folder = text(kZVScriptingFolder).replace(0, 1, QDir::homePath());
    const QFileInfo info(folder);
    if (!info.isDir()) {
        print("scripts",
              folder + (info.exists() ? " is no folder" : " does not exist; the pane makes it"));
        return;
    }
    const auto count = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    print("scripts", QStringLiteral("%1 in %2, %3")
                         .arg(count)
                         .arg(folder, info.isWritable() ? QStringLiteral("writable")
                                                        : QStringLiteral("not writable")));
}

/// Whether polkit knows the right that the lock asks for, by its list `a(ssssssuuua{ss})`.
QString policyInWords(const QDBusMessage& reply) {
    if (reply.type() == QDBusMessage::ErrorMessage || reply.arguments().isEmpty())
        return QStringLiteral("is not available: %1").arg(reply.errorName());
    const QString wanted = text(product::agentIdentifier) + '.' + text(product::adminRight);
    const auto actions = reply.arguments().first().value<QDBusArgument>();
    bool known = false;
    for (actions.beginArray(); !actions.atEnd(); actions.endStructure()) {
        actions.beginStructure();
        QString identifier;
        actions >> identifier;
        known = known || identifier == wanted;
    }
    return known ? "knows " + wanted : "does not know " + wanted + ": its policy is not installed";
}

void tellOfPolkit(const QDBusConnection& system) {
    auto call = QDBusMessage::createMethodCall(
        polkitName, QStringLiteral("/org/freedesktop/PolicyKit1/Authority"),
        QStringLiteral("org.freedesktop.PolicyKit1.Authority"), QStringLiteral("EnumerateActions"));
    call << QString();
    print("polkit", policyInWords(system.call(call, QDBus::Block, callLimit)));
}

} // namespace

int diagnose(const CommandLine& commandLine) {
    tellOfProgram();
    tellOfPanes(commandLine);
    BusConnection session(BusOptions::sessionBus());
    tellOfBus("session bus", session);
    tellOfAgent(commandLine, session);
    tellOfScripts();
    BusConnection system(BusOptions::systemBus());
    if (const auto bus = tellOfBus("system bus", system))
        tellOfPolkit(*bus);
    return 0;
}

} // namespace zarvil::host
