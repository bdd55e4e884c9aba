#pragma once

#include "bus/BusConnection.h"
#include "protocol/MessageCenter.h"

#include <QDBusMessage>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>
#include <string_view>
#include <vector>

namespace zarvil::check {

/// A message of the agent's, and whether it came in the form that the protocol gives it.
struct Heard {
    Message message;
    bool isWellFormed;
};

/// Speaks with the agent from where the pane does: as the owner of the preferences' name. Hears
/// what the owner of the agent's name broadcasts, whatever its members are.
class Conversation final : public QObject {
    Q_OBJECT

public:
    using Condition = std::function<bool()>;

    /// The bus must outlive the conversation.
    explicit Conversation(BusConnection& bus) : bus_(bus) {}

    /// Why there is nobody to speak with, or empty. To be called once, before anything else.
    [[nodiscard]] QString open();

    void send(const Message& message);
    /// Sends an argument that no payload is.
    void sendNonsense(std::string_view name);

    /// All that was heard so far, in order.
    [[nodiscard]] const std::vector<Heard>& heard() const { return heard_; }
    /// How many messages of a name came since a moment, which is a count of messages.
    [[nodiscard]] std::size_t countSince(std::size_t moment, std::string_view name) const;
    /// Runs the event loop until the condition holds; false when it does not within the limit.
    bool waitFor(const Condition& condition, std::chrono::milliseconds limit) const;
    /// The agent's connections that own its name or wait for it; empty when it has gone.
    [[nodiscard]] QStringList owners() const;

private Q_SLOTS:
    void receive(const QDBusMessage& signal);

private:
    BusConnection& bus_;
    QString agent_; ///< the agent's connection
    std::vector<Heard> heard_;
};

} // namespace zarvil::check
