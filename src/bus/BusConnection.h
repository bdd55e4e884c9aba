#pragma once

#include "bus/MessageBus.h"
#include "bus/SignalHook.h"
#include "protocol/ObserverList.h"

#include <QByteArray>
#include <QObject>

#include <memory>
#include <thread>
#include <vector>

namespace zarvil {

struct BusOptions {
    /// Where the bus listens, as the bus library writes it.
    QByteArray address;
    /// The first attempt takes the connection to the session bus that Qt keeps for itself and its
    /// accessibility. That one never comes back once it is lost; the later ones are our own.
    bool sharesWithQt = false;
    /// Called on the connecting thread with every new connection, before anybody else has it, to
    /// take a name without keeping the main thread waiting. It must not refer to anything that may
    /// be gone by then, nor take longer than `BusConnection::limit`.
    std::function<void(const QDBusConnection&)> join;
    /// The wait after a failed attempt or a loss, doubled by each further failure up to a minute.
    /// Without it the next attempt comes with the next `whenReady`.
    std::optional<std::chrono::milliseconds> firstRetry;

    /// The desktop session's bus, connected again for ever.
    [[nodiscard]] static BusOptions sessionBus();
    /// The system's bus, connected when it is asked for.
    [[nodiscard]] static BusOptions systemBus();
};

/// The one place that connects to a bus and notices when it goes. Connecting waits for the bus, up
/// to half a minute for one that hangs; so each attempt has a thread of its own. Keeps no timer
/// while it is connected.
class BusConnection final : public QObject, public MessageBus {
    Q_OBJECT

public:
    /// How long an attempt may take before the bus counts as unavailable, and how long an end
    /// waits for an attempt under way.
    static constexpr std::chrono::seconds limit{2};
    /// The connection may turn out not to be connected.
    using Ready = std::function<void(const QDBusConnection&)>;

    /// Connects by itself when it is to try again by itself.
    explicit BusConnection(BusOptions options);
    /// Waits for an attempt under way, so that its thread is gone before the program's statics
    /// are. A thread that hangs is left behind, and `anyHangs` says so from then on.
    ~BusConnection() override;

    /// Whether a thread was left behind: then the process must end without destroying statics.
    [[nodiscard]] static bool anyHangs();

    [[nodiscard]] BusState state() const override { return state_; }
    [[nodiscard]] const std::optional<QDBusConnection>& connection() const override {
        return connection_;
    }
    [[nodiscard]] QString error() const override { return error_; }
    Subscription observe(const Observer& observer) override;
    const std::optional<QDBusConnection>& wait(std::chrono::milliseconds patience) override;

    /// Connects if need be and calls back from the event loop, never from within. Nothing is
    /// called once `context` or this object is gone.
    void whenReady(QObject* context, Ready ready);

private Q_SLOTS:
    void finish();

private:
    struct Attempt;

    void start();
    void expire();
    void becomeUnavailable(const QString& error);
    void scheduleRetry();
    void lost();
    void leave();
    void setState(BusState state);
    void callBack();

    BusOptions options_;
    BusState state_ = BusState::Unavailable;
    QString error_;
    ObserverList<BusState> observers_;
    std::optional<QDBusConnection> connection_;
    std::optional<SignalHook> loss_;
    std::vector<Ready> waiting_;
    std::shared_ptr<Attempt> attempt_; ///< null unless a thread connects
    std::thread thread_;
    int attempts_ = 0;
    std::chrono::milliseconds nextRetry_{};
};

} // namespace zarvil
