#pragma once

#include "bus/DBusValues.h"

#include <QDBusMessage>
#include <QObject>

#include <deque>
#include <functional>
#include <optional>
#include <variant>

namespace zarvil {

/// Hands on signals with their payloads, in order: at once, from within `receive`, for as long as
/// none takes long to read. One that does is read in parts, each in a turn of the event loop of its
/// own, and handed on whole in another; what comes meanwhile waits behind it.
class Inbox final : public QObject {
    Q_OBJECT

public:
    /// It may end the inbox, or run an event loop.
    using Take = std::function<void(const QDBusMessage& signal, std::optional<Dictionary> payload)>;

    explicit Inbox(Take take) : take_(std::move(take)) {}

    void receive(const QDBusMessage& signal) { add(signal); }
    /// Calls once the signals that came before have been handed on.
    void follow(std::function<void()> call) { add(std::move(call)); }
    /// Forgets what waits.
    void clear();
    [[nodiscard]] bool isEmpty() const { return waiting_.empty(); }

private Q_SLOTS:
    void goOn();

private:
    using Arrival = std::variant<QDBusMessage, std::function<void()>>;

    void add(Arrival arrival);
    void handOn(const QDeadlineTimer& end);
    [[nodiscard]] bool readFirst(const QDeadlineTimer& end);
    void handOnFirst();
    void goOnLater();

    Take take_;
    std::deque<Arrival> waiting_;
    std::optional<PayloadReader> reader_; ///< of the first that waits
    bool willGoOn_ = false;
};

} // namespace zarvil
