#include "qt/adapters/BusConnection.h"

#include <QPointer>

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace zarvil {

/// What the connecting thread and the owner both reach; the thread may outlive the owner.
struct BusConnection::Shared {
    std::mutex mutex;
    std::condition_variable ended;
    BusConnection* owner = nullptr;
    Connect connect;
    std::optional<QDBusConnection> connection;
    bool started = false;
};

BusConnection::BusConnection(Connect connect) : shared_(std::make_shared<Shared>()) {
    shared_->owner = this;
    shared_->connect = std::move(connect);
}

BusConnection::~BusConnection() {
    const std::lock_guard lock(shared_->mutex);
    shared_->owner = nullptr;
}

BusConnection::Connect BusConnection::sessionBus() {
    return [] { return QDBusConnection::sessionBus(); };
}

BusConnection::Connect BusConnection::systemBus() {
    return [] { return QDBusConnection::systemBus(); };
}

void BusConnection::start() {
    if (std::exchange(shared_->started, true))
        return;
    // Detached, since joining would wait for a bus that hangs.
    std::thread([shared = shared_] {
        auto connection = shared->connect();
        const std::lock_guard lock(shared->mutex);
        shared->connection = std::move(connection);
        shared->ended.notify_all();
        if (shared->owner)
            QMetaObject::invokeMethod(
                shared->owner, [owner = shared->owner] { owner->announce(); },
                Qt::QueuedConnection);
    }).detach();
}

void BusConnection::whenReady(QObject* context, Ready ready) {
    waiting_.emplace_back(
        [guard = QPointer(context), call = std::move(ready)](const QDBusConnection& connection) {
            if (guard)
                call(connection);
        });
    start();
    const std::lock_guard lock(shared_->mutex);
    if (shared_->connection)
        QMetaObject::invokeMethod(
            this, [this] { announce(); }, Qt::QueuedConnection);
}

std::optional<QDBusConnection> BusConnection::wait(std::chrono::milliseconds limit) {
    start();
    std::unique_lock lock(shared_->mutex);
    shared_->ended.wait_for(lock, limit, [this] { return shared_->connection.has_value(); });
    if (!shared_->connection || !shared_->connection->isConnected())
        return std::nullopt;
    return shared_->connection;
}

void BusConnection::announce() {
    const QPointer<BusConnection> self(this);
    const QDBusConnection connection = *shared_->connection;
    for (const auto& call : std::exchange(waiting_, {})) {
        call(connection);
        if (!self)
            return;
    }
}

} // namespace zarvil
