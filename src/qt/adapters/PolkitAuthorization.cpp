#include "qt/adapters/PolkitAuthorization.h"

#include "pane/Product.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QMap>
#include <QtDebug>

#include <utility>

namespace zarvil {

/// Who holds the right, as polkit describes it: `(sa{sv})`.
struct PolkitSubject {
    QString kind;
    QVariantMap details;
};

/// Polkit's answer: `(bba{ss})`.
struct PolkitResult {
    bool authorized = false;
    bool challenge = false;
    QMap<QString, QString> details;
};

static QDBusArgument& operator<<(QDBusArgument& out, const PolkitSubject& subject) {
    out.beginStructure();
    out << subject.kind << subject.details;
    out.endStructure();
    return out;
}

static const QDBusArgument& operator>>(const QDBusArgument& in, PolkitSubject& subject) {
    in.beginStructure();
    in >> subject.kind >> subject.details;
    in.endStructure();
    return in;
}

static QDBusArgument& operator<<(QDBusArgument& out, const PolkitResult& result) {
    out.beginStructure();
    out << result.authorized << result.challenge << result.details;
    out.endStructure();
    return out;
}

static const QDBusArgument& operator>>(const QDBusArgument& in, PolkitResult& result) {
    in.beginStructure();
    in >> result.authorized >> result.challenge >> result.details;
    in.endStructure();
    return in;
}

} // namespace zarvil

Q_DECLARE_METATYPE(zarvil::PolkitSubject)
Q_DECLARE_METATYPE(zarvil::PolkitResult)

namespace zarvil {

namespace {

constexpr uint allowUserInteraction = 1;
constexpr int quietLimit = 10'000;        // milliseconds
constexpr int interactiveLimit = 600'000; // the user looks for a password meanwhile

using Answer = QDBusPendingReply<PolkitResult>;

QString translated(const char* text) {
    return QCoreApplication::translate("PolkitAuthorization", text);
}

AuthorizationOutcome refusal(const char* text) { return {false, translated(text).toStdString()}; }

AuthorizationOutcome unavailable() {
    return refusal(QT_TRANSLATE_NOOP("PolkitAuthorization",
                                     "Administrator rights cannot be checked: the authorization "
                                     "service (polkit) is not available."));
}

/// When this process started, in the kernel's ticks: with the process identifier it names the
/// process beyond doubt. The field is the 22nd, and the second may hold any character.
quint64 startTime() {
    QFile stat("/proc/self/stat");
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray line = stat.readAll();
    const QByteArrayList fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype startTimeField = 22 - 3;
    return fields.value(startTimeField).toULongLong();
}

PolkitSubject thisProcess() {
    return {"unix-process",
            {{"pid", static_cast<uint>(QCoreApplication::applicationPid())},
             {"start-time", startTime()}}};
}

QDBusMessage question(const QString& action, Interaction interaction) {
    auto call = QDBusMessage::createMethodCall(
        "org.freedesktop.PolicyKit1", "/org/freedesktop/PolicyKit1/Authority",
        "org.freedesktop.PolicyKit1.Authority", "CheckAuthorization");
    call << QVariant::fromValue(thisProcess()) << action
         << QVariant::fromValue(QMap<QString, QString>())
         << (interaction == Interaction::MayAskUser ? allowUserInteraction : 0U) << QString();
    return call;
}

AuthorizationOutcome outcomeOf(const Answer& answer, Interaction interaction) {
    if (answer.isError()) {
        const QString error = answer.error().name();
        qWarning().noquote() << "polkit:" << error << answer.error().message();
        if (error == QLatin1String("org.freedesktop.PolicyKit1.Error.Cancelled"))
            return refusal(
                QT_TRANSLATE_NOOP("PolkitAuthorization", "The authentication was cancelled."));
        return unavailable();
    }
    const PolkitResult result = answer.value();
    if (result.authorized)
        return {true, {}};
    if (result.details.contains("polkit.dismissed"))
        return refusal(
            QT_TRANSLATE_NOOP("PolkitAuthorization", "The authentication was cancelled."));
    if (result.challenge && interaction == Interaction::MayAskUser)
        return refusal(QT_TRANSLATE_NOOP(
            "PolkitAuthorization",
            "No authentication agent is running that could ask for an administrator's password."));
    if (result.challenge)
        return refusal(
            QT_TRANSLATE_NOOP("PolkitAuthorization", "An administrator's password is needed."));
    return refusal(
        QT_TRANSLATE_NOOP("PolkitAuthorization", "You do not have administrator rights."));
}

} // namespace

PolkitAuthorization::PolkitAuthorization(BusConnection::Connect connect)
    : system_(std::move(connect)) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    qDBusRegisterMetaType<PolkitSubject>();
    qDBusRegisterMetaType<PolkitResult>();
}

QString PolkitAuthorization::actionOf(std::string_view right) {
    return QString::fromUtf8(product::agentIdentifier) + "." + QString::fromUtf8(right);
}

void PolkitAuthorization::check(std::string_view right, Interaction interaction, Reply reply) {
    system_.whenReady(this, [this, action = actionOf(right), interaction,
                             reply = std::move(reply)](const QDBusConnection& bus) {
        if (bus.isConnected())
            ask(bus, action, interaction, reply);
        else
            reply(unavailable());
    });
}

void PolkitAuthorization::ask(const QDBusConnection& bus, const QString& action,
                              Interaction interaction, const Reply& reply) {
    const int limit = interaction == Interaction::MayAskUser ? interactiveLimit : quietLimit;
    auto* watcher =
        new QDBusPendingCallWatcher(bus.asyncCall(question(action, interaction), limit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, interaction, reply] {
        watcher->deleteLater();
        reply(outcomeOf(Answer(*watcher), interaction));
    });
}

} // namespace zarvil
