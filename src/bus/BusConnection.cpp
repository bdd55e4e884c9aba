#include "bus/BusConnection.h"

#include "bus/BusProbe.h"
#include "bus/DBusValues.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace zarvil {

namespace {

constexpr std::chrono::milliseconds longestRetry{60'000};
/// On the application object, since program and plug-ins each hold a copy of this file.
constexpr const char* hangsProperty = "zarvil.busConnectionHangs";

QDBusConnection connectTo(const BusOptions& options, const QString& name, bool isFirst) {
    // Qt would wait for a bus that hangs, and keep its other connections waiting too.
    if (!busAnswers(options.address, BusConnection::limit))
        return QDBusConnection(QString());
    if (options.sharesWithQt && isFirst)
        if (auto shared = QDBusConnection::sessionBus(); shared.isConnected())
            return shared;
    return QDBusConnection::connectToBus(QString::fromUtf8(options.address), name);
}

} // namespace

/// What the connecting thread and the owner both reach; the thread may outlive the owner.
struct BusConnection::Attempt {
    std::mutex mutex;
    std::condition_variable ended;
    BusConnection* owner = nullptr;
    std::optional<QDBusConnection> connection;
    bool isLate = false; ///< its limit is over; known to the main thread alone

    bool waitForEnd(std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex);
        return ended.wait_for(lock, patience, [this] { return connection.has_value(); });
    }
};

BusOptions BusOptions::sessionBus() {
    BusOptions options;
    options.address = sessionBusAddress();
    options.sharesWithQt = true;
    options.firstRetry = std::chrono::seconds(1);
    return options;
}

BusOptions BusOptions::systemBus() {
    BusOptions options;
    options.address = systemBusAddress();
    return options;
}

BusConnection::BusConnection(BusOptions options) : options_(std::move(options)) {
    nextRetry_ = options_.firstRetry.value_or(nextRetry_);
    if (options_.firstRetry)
        start();
}

BusConnection::~BusConnection() {
    if (attempt_ && !attempt_->waitForEnd(limit)) {
        const std::lock_guard lock(attempt_->mutex);
        attempt_->owner = nullptr;
        thread_.detach();
        QCoreApplication::instance()->setProperty(hangsProperty, true);
        return;
    }
    if (attempt_) {
        thread_.join();
        connection_ = attempt_->connection;
    }
    leave();
}

bool BusConnection::anyHangs() {
    return QCoreApplication::instance()->property(hangsProperty).toBool();
}

Subscription BusConnection::observe(const Observer& observer) {
    Subscription subscription = observers_.add(observer);
    observer(state_);
    return subscription;
}

void BusConnection::start() {
    if (connection_)
        return;
    if (!attempt_) {
        attempt_ = std::make_shared<Attempt>();
        attempt_->owner = this;
        // Unlike any that a copy of this code in another library makes in this process.
        const QString name = QStringLiteral("zarvil-%1-%2")
                                 .arg(reinterpret_cast<quintptr>(this), 0, 16)
                                 .arg(++attempts_);
        thread_ =
            std::thread([attempt = attempt_, options = options_, name, isFirst = attempts_ == 1] {
                auto connection = connectTo(options, name, isFirst);
                if (connection.isConnected() && options.join)
                    options.join(connection);
                const std::lock_guard lock(attempt->mutex);
                attempt->connection = std::move(connection);
                attempt->ended.notify_all();
                if (attempt->owner)
                    QMetaObject::invokeMethod(attempt->owner, "finish", Qt::QueuedConnection);
            });
    }
    attempt_->isLate = false;
    QTimer::singleShot(limit, this, [this, started = std::weak_ptr(attempt_)] {
        if (attempt_ && attempt_ == started.lock())
            expire();
    });
    setState(BusState::Connecting);
}

/// Comes twice when somebody has waited for the end.
void BusConnection::finish() {
    if (!attempt_ || !attempt_->waitForEnd({}))
        return;
    thread_.join();
    QDBusConnection connection = *std::exchange(attempt_, nullptr)->connection;
    if (connection.isConnected())
        loss_.emplace(connection,
                      SignalHook::Signal{QStringLiteral("/org/freedesktop/DBus/Local"),
                                         QStringLiteral("org.freedesktop.DBus.Local"),
                                         QStringLiteral("Disconnected")},
                      [this](const QDBusMessage&) { lost(); });
    // Asked again: a bus that went before its end was being listened for.
    if (!connection.isConnected()) {
        const QString reason = connection.lastError().message();
        connection_ = connection;
        becomeUnavailable(reason.isEmpty() ? tr("The message bus does not answer") : reason);
        return;
    }
    connection_ = connection;
    error_.clear();
    nextRetry_ = options_.firstRetry.value_or(nextRetry_);
    setState(BusState::Connected);
    callBack();
}

/// The attempt goes on: a bus that answers at last is welcome.
void BusConnection::expire() {
    if (attempt_->isLate || state_ != BusState::Connecting)
        return;
    attempt_->isLate = true;
    error_ = tr("The message bus does not answer");
    setState(BusState::Unavailable);
    callBack();
}

void BusConnection::lost() {
    if (connection_ && !connection_->isConnected())
        becomeUnavailable(tr("The connection to the message bus was lost"));
}

void BusConnection::becomeUnavailable(const QString& error) {
    leave();
    error_ = error;
    qCDebug(busLog, "No message bus: %s", qUtf8Printable(error));
    scheduleRetry();
    setState(BusState::Unavailable);
    callBack();
}

void BusConnection::scheduleRetry() {
    if (!options_.firstRetry)
        return;
    QTimer::singleShot(nextRetry_, this, &BusConnection::start);
    nextRetry_ = std::min(nextRetry_ * 2, longestRetry);
}

void BusConnection::leave() {
    loss_.reset();
    const auto left = std::exchange(connection_, std::nullopt);
    if (left && left->name().startsWith(QLatin1String("zarvil-")))
        QDBusConnection::disconnectFromBus(left->name());
}

void BusConnection::setState(BusState state) {
    if (state != state_) {
        state_ = state;
        observers_.notify(state);
    }
}

const std::optional<QDBusConnection>& BusConnection::wait(std::chrono::milliseconds patience) {
    if (attempt_ && state_ == BusState::Connecting && attempt_->waitForEnd(patience))
        finish();
    return connection_;
}

void BusConnection::whenReady(QObject* context, Ready ready) {
    waiting_.emplace_back(
        [guard = QPointer(context), call = std::move(ready)](const QDBusConnection& connection) {
            if (guard)
                call(connection);
        });
    if (connection_)
        QMetaObject::invokeMethod(this, &BusConnection::callBack, Qt::QueuedConnection);
    else
        start();
}

void BusConnection::callBack() {
    if (state_ == BusState::Connecting)
        return;
    const QPointer<BusConnection> self(this);
    const QDBusConnection connection = connection_.value_or(QDBusConnection(QString()));
    for (const auto& call : std::exchange(waiting_, {})) {
        call(connection);
        if (!self)
            return;
    }
}

} // namespace zarvil
