#include "host/SingleInstance.h"

#include "bus/BusDaemon.h"
#include "protocol/BusNames.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <mutex>

namespace zarvil::host {

namespace {

constexpr const char* objectPath = "/com/Tessrow/Preferences";
constexpr const char* interface = "org.freedesktop.Application";
constexpr int nameLimit = 2000;  // milliseconds
constexpr int raiseLimit = 1000; // milliseconds

} // namespace

/// What the connecting thread reaches; it may outlive the object.
struct SingleInstance::Shared {
    std::mutex mutex;
    SingleInstance* owner = nullptr;
    Standing standing = Standing::Unknown;

    /// Before the name is taken: whoever sees the name may call at once.
    void offer(QDBusConnection bus) {
        const std::lock_guard lock(mutex);
        if (owner)
            bus.registerObject(objectPath, owner, QDBusConnection::ExportScriptableSlots);
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
}

std::function<void(const QDBusConnection&)> SingleInstance::claim() const {
    return [shared = shared_](const QDBusConnection& bus) {
        shared->offer(bus);
        const auto outcome =
            nameOutcome(bus.call(nameRequest(bus::hostName), QDBus::Block, nameLimit));
        shared->decide(outcome == NameOutcome::Taken ? Standing::Second : Standing::First);
    };
}

SingleInstance::Standing SingleInstance::standing() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->standing;
}

void SingleInstance::raiseFirst(const QDBusConnection& bus, std::function<void(bool)> report) {
    auto call = QDBusMessage::createMethodCall(bus::hostName, objectPath, interface, "Activate");
    call << QVariantMap();
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, raiseLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [watcher, report = std::move(report)] {
                watcher->deleteLater();
                report(!watcher->isError());
            });
}

void SingleInstance::Activate(const QVariantMap& /*hints*/) { Q_EMIT activated(); }

} // namespace zarvil::host
