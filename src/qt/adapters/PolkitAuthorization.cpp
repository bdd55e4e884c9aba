#include "qt/adapters/PolkitAuthorization.h"

#include "pane/Product.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QLoggingCategory>
#include <QMap>

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

Q_LOGGING_CATEGORY(polkitLog, "zarvil.polkit", QtInfoMsg)

constexpr uint allowUserInteraction = 1;
constexpr int quietLimit = 10'000;        // milliseconds
constexpr int interactiveLimit = 600'000; // the user looks for a password meanwhile

constexpr const char* authority = "org.freedesktop.PolicyKit1";

QString translated(const char* text) {
    return QCoreApplication::translate("PolkitAuthorization", text);
}

AuthorizationOutcome refusal(const char* text) { return {false, translated(text).toStdString()}; }

AuthorizationOutcome unavailable() {
    AuthorizationOutcome outcome = refusal(QT_TRANSLATE_NOOP(
        "PolkitAuthorization", "Administrator rights cannot be checked: the authorization "
                               "service (polkit) is not available."));
    outcome.missing = "polkit";
    return outcome;
}

AuthorizationOutcome cancelled() {
    return refusal(QT_TRANSLATE_NOOP("PolkitAuthorization", "The authentication was cancelled."));
}

QDBusMessage authorityCall(const char* method) {
    return QDBusMessage::createMethodCall(authority, "/org/freedesktop/PolicyKit1/Authority",
                                          "org.freedesktop.PolicyKit1.Authority", method);
}

AuthorizationOutcome outcomeOfError(const QDBusMessage& error) {
    qCWarning(polkitLog).noquote() << "polkit:" << error.errorName() << error.errorMessage();
    const QString prefix = QLatin1String(authority) + ".Error.";
    if (error.errorName() == prefix + "Cancelled")
        return cancelled();
    // polkit has no error of its own for an action that it does not know.
    if (error.errorName() == prefix + "Failed" && error.errorMessage().contains("not registered"))
        return refusal(QT_TRANSLATE_NOOP("PolkitAuthorization",
                                         "Administrator rights cannot be checked: Zarvil's policy "
                                         "for the authorization service (polkit) is not "
                                         "installed."));
    if (error.errorName().startsWith(prefix))
        return refusal(QT_TRANSLATE_NOOP("PolkitAuthorization",
                                         "Administrator rights cannot be checked: the "
                                         "authorization service (polkit) has failed."));
    return unavailable();
}

/// `asked` when the user was asked for a password, which polkit answers with a plain no if it was
/// wrong.
AuthorizationOutcome outcomeOf(const PolkitResult& result, bool asked) {
    if (result.authorized)
        return {true, {}};
    if (result.details.contains("polkit.dismissed"))
        return cancelled();
    if (result.challenge && asked)
        return refusal(QT_TRANSLATE_NOOP(
            "PolkitAuthorization",
            "No authentication agent is running that could ask for an administrator's password."));
    if (result.challenge)
        return refusal(
            QT_TRANSLATE_NOOP("PolkitAuthorization", "An administrator's password is needed."));
    if (asked)
        return refusal(QT_TRANSLATE_NOOP("PolkitAuthorization", "The authentication has failed."));
    return refusal(
        QT_TRANSLATE_NOOP("PolkitAuthorization", "You do not have administrator rights."));
}

} // namespace

struct PolkitAuthorization::Question {
    QString action;
    bool mayAsk;
    Reply reply;
    bool asks = false; ///< this time; every question is first put quietly

    [[nodiscard]] QDBusMessage message(const QString& sender) const {
        auto call = authorityCall("CheckAuthorization");
        call << QVariant::fromValue(PolkitSubject{"system-bus-name", {{"name", sender}}}) << action
             << QVariant::fromValue(QMap<QString, QString>()) << (asks ? allowUserInteraction : 0U)
             << QString();
        return call;
    }
};

PolkitAuthorization::PolkitAuthorization(BusOptions system) : system_(std::move(system)) {
    qDBusRegisterMetaType<QMap<QString, QString>>();
    qDBusRegisterMetaType<PolkitSubject>();
    qDBusRegisterMetaType<PolkitResult>();
}

QString PolkitAuthorization::actionOf(std::string_view right) {
    return QString::fromUtf8(product::agentIdentifier) + "." + QString::fromUtf8(right);
}

void PolkitAuthorization::check(std::string_view right, Interaction interaction, Reply reply) {
    ask({actionOf(right), interaction == Interaction::MayAskUser, std::move(reply)});
}

void PolkitAuthorization::ask(const Question& question) {
    system_.whenReady(this, [this, question](const QDBusConnection& bus) {
        if (!bus.isConnected()) {
            question.reply(unavailable());
            return;
        }
        auto* watcher = new QDBusPendingCallWatcher(
            bus.asyncCall(question.message(bus.baseService()),
                          question.asks ? interactiveLimit : quietLimit),
            this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, question] {
            watcher->deleteLater();
            answered(question, watcher->reply());
        });
    });
}

void PolkitAuthorization::answered(const Question& question, const QDBusMessage& answer) {
    const QDBusReply<PolkitResult> result(answer);
    if (!result.isValid()) {
        question.reply(outcomeOfError(answer));
        return;
    }
    temporaryRight_ = result.value().details.value("polkit.temporary_authorization_id");
    if (result.value().challenge && question.mayAsk && !question.asks) {
        Question aloud = question;
        aloud.asks = true;
        ask(aloud);
        return;
    }
    question.reply(outcomeOf(result.value(), question.asks));
}

// Nobody waits for the answer: polkit forgets such a right by itself after a while.
void PolkitAuthorization::release(std::string_view /*right*/) {
    if (temporaryRight_.isEmpty() || !system_.connection())
        return;
    auto call = authorityCall("RevokeTemporaryAuthorizationById");
    call << std::exchange(temporaryRight_, {});
    system_.connection()->send(call);
}

} // namespace zarvil
