#include "host/SingleInstance.h"

#include "bus/BusDaemon.h"
#include "host/Log.h"
#include "protocol/BusNames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <mutex>
#include <optional>

namespace zarvil::host {

namespace {

constexpr const char* objectPath = "/com/Tessrow/Preferences";
constexpr const char* interface = "org.freedesktop.Application";
constexpr int nameLimit = 2000;  // milliseconds
constexpr int raiseLimit = 1000; // milliseconds

constexpr const char* tokenHint = "activation-token";
constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";

QVariantMap ownHints() {
    const QString token = qEnvironmentVariable(tokenVariable);
    return token.isEmpty() ? QVariantMap() : QVariantMap{{tokenHint, token}};
}

/// Where the toolkit looks for it when a window asks to come to the front.
void adoptHints(const QVariantMap& hints) {
    if (const QString token = hints.value(tokenHint).toString(); !token.isEmpty())
        qputenv(tokenVariable, token.toUtf8());
}

} // namespace

/// What the connecting thread reaches; it may outlive the object.
struct SingleInstance::Shared {
    std::mutex mutex;
    SingleInstance* owner = nullptr;
    Standing standing = Standing::Unknown;
    /// Kept open: the bus library's thread still reaches what a connection that it closes offers.
    std::optional<QDBusConnection> offered;

    /// Before the name is taken: whoever sees the name may call at once.
    void offer(QDBusConnection bus) {
        const std::lock_guard lock(mutex);
        withdraw();
        if (owner && bus.registerObject(objectPath, owner, QDBusConnection::ExportScriptableSlots))
            offered = bus;
    }
    /// To be called with the lock.
    void withdraw() {
        if (offered)
            offered->unregisterObject(objectPath);
        offered.reset();
    }
    void decide(Standing outcome) {
        const std::lock_guard lock(mutex);
        standing = outcome;
    }
};

SingleInstance::SingleInstance() : shared_(std::make_shared<Shared>()) { shared_->owner = this; }

SingleInstance::~SingleInstance() {
    const std::lock_guard lock(shared_->mutex);
    shared_->owner = nullptr;
    shared_->withdraw();
    // Of this too the bus library's thread would take notice.
    disconnect(this, &QObject::destroyed, nullptr, nullptr);
}

std::function<void(const QDBusConnection&)> SingleInstance::claim() const {
    return [shared = shared_](const QDBusConnection& bus) {
        shared->offer(bus);
        const auto outcome = nameOutcome(answer(bus, nameRequest(bus::hostName), nameLimit));
        shared->decide(outcome == NameOutcome::Taken ? Standing::Second : Standing::First);
    };
}

SingleInstance::Standing SingleInstance::standing() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->standing;
}

void SingleInstance::raiseFirst(const QDBusConnection& bus, const QString& tab,
                                std::function<void(FirstAnswer)> report) {
    auto call = QDBusMessage::createMethodCall(bus::hostName, objectPath, interface,
                                               tab.isEmpty() ? "Activate" : "ActivateAction");
    if (!tab.isEmpty())
        call << tab << QVariantList();
    call << ownHints();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, raiseLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [watcher, report = std::move(report)] {
                watcher->deleteLater();
                if (!watcher->isError())
                    report(FirstAnswer::Shown);
                else if (watcher->error().type() == QDBusError::InvalidArgs)
                    report(FirstAnswer::NoSuchTab);
                else
                    report(FirstAnswer::None);
            });
}

void SingleInstance::Activate(const QVariantMap& hints) {
    adoptHints(hints);
    Q_EMIT activated();
}

void SingleInstance::Open(const QStringList& addresses, const QVariantMap& hints) {
    if (!addresses.isEmpty())
        qCWarning(hostLog, "Asked to open files, which the preferences do not do");
    Activate(hints);
}

void SingleInstance::ActivateAction(const QString& name, const QVariantList& /*parameters*/,
                                    const QVariantMap& hints) {
    Activate(hints);
    if (showTab_ && showTab_(name))
        return;
    qCWarning(hostLog).noquote() << "Asked for the unknown tab" << name;
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no tab of this name"));
}

} // namespace zarvil::host
