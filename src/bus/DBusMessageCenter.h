#pragma once

#include "bus/BusDaemon.h"
#include "bus/Inbox.h"
#include "bus/MessageBus.h"
#include "bus/SenderGate.h"
#include "bus/SignalHook.h"
#include "protocol/MessageCenter.h"
#include "protocol/ObserverList.h"

#include <QDBusConnection>
#include <QString>

#include <deque>
#include <map>
#include <memory>
#include <optional>

namespace zarvil {

/// Messages as broadcast signals on a message bus. What is posted while the bus is being connected
/// to is sent once it is; what is posted without a bus is lost, like a message that nobody
/// receives. Nothing here blocks but `flush` and the destructor.
class DBusMessageCenter final : public MessageCenter {
public:
    /// Messages are taken from the owner of the well-known name `acceptFrom` alone; from anyone
    /// when it is empty. The bus must outlive the center.
    explicit DBusMessageCenter(MessageBus& bus, QString acceptFrom = {});
    /// Sends what was posted, waiting at most a second.
    ~DBusMessageCenter() override;

    void post(Message message) override;
    Subscription addObserver(std::string_view name, Handler handler) override;
    Subscription observeLink(const LinkObserver& observer) override;
    [[nodiscard]] bool isBehind() const override { return !inbox_.isEmpty(); }

    /// Waits, at most a second, until what was posted has reached the bus. For use before the
    /// process is ended: messages leave through another thread, which ends with the process.
    void flush();

private:
    struct Observed {
        ObserverList<const Message&> observers;
        std::size_t count = 0;
        std::optional<SignalHook> hook;
    };

    void busChanged(BusState state);
    void hookUp();
    void hang();
    void ownerIs(const QString& owner);
    void ownerChanged(const QString& from, const QString& to);
    void peerIs(const QString& owner);

    void send(const Message& message);
    void receive(const QDBusMessage& signal);
    void deliver(const QDBusMessage& signal, std::optional<Dictionary> payload);
    void watch(const std::string& name, Observed& observed);
    void forget(const std::string& name);

    MessageBus& bus_;
    QString acceptFrom_;
    std::optional<QDBusConnection> connection_;
    std::deque<Message> waiting_;
    bool unflushed_ = false;
    // Entries stay when their last observer goes: it may go while the list is being notified.
    std::map<std::string, Observed, std::less<>> observed_;
    ObserverList<LinkEvent> links_;
    LinkEvent link_ = LinkEvent::Up; ///< `Up` or `Down`; nobody is alarmed before the first attempt
    Inbox inbox_;
    SenderGate gate_;
    std::unique_ptr<OwnerWatch> owner_;
    QString peer_;                 ///< the owner that the link's observers know of
    bool expectsNewcomer_ = false; ///< what was posted has not reached the next owner
    // Destroyed first, so that a subscription that goes with an observer finds nobody to tell.
    std::shared_ptr<char> lifetime_ = std::make_shared<char>();
    Subscription busState_;
};

} // namespace zarvil
