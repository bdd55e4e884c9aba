#include "host/SingleInstance.h"

#include "protocol/BusNames.h"

#include <QDBusMessage>
#include <QDBusReply>

#include <mutex>

namespace zarvil::host {

namespace {

constexpr const char* objectPath = "/com/Tessrow/Preferences";
constexpr const char* interface = "org.freedesktop.Application";
constexpr int answerLimit = 5000; // milliseconds

// Of the bus's RequestName.
constexpr uint doNotQueue = 4;
constexpr uint primaryOwner = 1;
constexpr uint alreadyOwner = 4;
constexpr uint exists = 3;

SingleInstance::Standing requestName(const QDBusConnection& bus) {
    auto call = QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                               "org.freedesktop.DBus", "RequestName");
    call << bus::hostName << doNotQueue;
    const QDBusReply<uint> reply = bus.call(call, QDBus::Block, answerLimit);
    if (!reply.isValid())
        return SingleInstance::Standing::NoBus;
    if (reply.value() == exists)
        return SingleInstance::Standing::Second;
    const bool owned = reply.value() == primaryOwner || reply.value() == alreadyOwner;
    return owned ? SingleInstance::Standing::First : SingleInstance::Standing::NoBus;
}

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
        if (owner)
            QMetaObject::invokeMethod(owner, &SingleInstance::decided, Qt::QueuedConnection);
    }
};

SingleInstance::SingleInstance() : shared_(std::make_shared<Shared>()) { shared_->owner = this; }

SingleInstance::~SingleInstance() {
    const std::lock_guard lock(shared_->mutex);
    shared_->owner = nullptr;
}

BusConnection::Connect SingleInstance::claiming(BusConnection::Connect connect) const {
    return [shared = shared_, connect = std::move(connect)] {
        auto bus = connect();
        if (bus.isConnected()) {
            shared->offer(bus);
            shared->decide(requestName(bus));
        } else {
            shared->decide(Standing::NoBus);
        }
        return bus;
    };
}

SingleInstance::Standing SingleInstance::standing() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->standing;
}

bool SingleInstance::raiseFirst(const QDBusConnection& bus) {
    auto call = QDBusMessage::createMethodCall(bus::hostName, objectPath, interface, "Activate");
    call << QVariantMap();
    return bus.call(call, QDBus::Block, answerLimit).type() == QDBusMessage::ReplyMessage;
}

void SingleInstance::Activate(const QVariantMap& /*hints*/) { Q_EMIT activated(); }

} // namespace zarvil::host
