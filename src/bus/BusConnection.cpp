#include "bus/BusConnection.h"

#include "bus/BusProbe.h"

#include <QCoreApplication>
#include <QPointer>
#include <QVariant>

#include <condition_variable>
#include <mutex>
#include <utility>
#include <vector>

namespace zarvil {

namespace {

constexpr std::chrono::seconds endLimit{2};
/// On the application object, since program and plug-ins each hold a copy of this file.
constexpr const char* hangsProperty = "zarvil.busConnectionHangs";

} // namespace

/// What the connecting thread and the owner both reach; the thread may outlive the owner.
struct BusConnection::Shared {
    std::mutex mutex;
    std::condition_variable ended;
    BusConnection* owner = nullptr;
    Connect connect;
    std::optional<QDBusConnection> connection;
};

BusConnection::BusConnection(Connect connect) : shared_(std::make_shared<Shared>()) {
    shared_->owner = this;
    shared_->connect = std::move(connect);
}

BusConnection::~BusConnection() {
    if (!thread_.joinable())
        return;
    std::unique_lock lock(shared_->mutex);
    shared_->owner = nullptr;
    if (shared_->ended.wait_for(lock, endLimit,
                                [this] { return shared_->connection.has_value(); })) {
        lock.unlock();
        thread_.join();
    } else {
        thread_.detach();
        QCoreApplication::instance()->setProperty(hangsProperty, true);
    }
}

bool BusConnection::anyHangs() {
    return QCoreApplication::instance()->property(hangsProperty).toBool();
}

BusConnection::Connect BusConnection::sessionBus() {
    return [] { return QDBusConnection::sessionBus(); };
}

BusConnection::Connect BusConnection::systemBus() {
    return [] {
        constexpr std::chrono::seconds limit{2};
        return busAnswers(systemBusAddress(), limit) ? QDBusConnection::systemBus()
                                                     : QDBusConnection(QString());
    };
}

void BusConnection::start() {
    if (thread_.joinable())
        return;
    thread_ = std::thread([shared = shared_] {
        auto connection = shared->connect();
        const std::lock_guard lock(shared->mutex);
        shared->connection = std::move(connection);
        shared->ended.notify_all();
        if (shared->owner)
            QMetaObject::invokeMethod(
                shared->owner, [owner = shared->owner] { owner->announce(); },
                Qt::QueuedConnection);
    });
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
