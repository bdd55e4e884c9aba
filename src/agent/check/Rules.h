#pragma once

#include "agent/check/Conversation.h"

#include <QString>

#include <array>
#include <chrono>
#include <optional>
#include <string_view>

namespace zarvil::check {

/// A name of the protocol as it is printed.
[[nodiscard]] QString quoted(std::string_view text);

/// What an agent says of itself when the pane asks.
struct Answer {
    std::vector<Heard> messages; ///< up to the answer to a ping that was sent behind the question

    /// The payload of the first message of a name; null without one.
    [[nodiscard]] const Dictionary* payloadOf(std::string_view name) const;
    [[nodiscard]] const Value* setting(std::string_view key) const;
    /// The entries under "devices" of a message of a name.
    [[nodiscard]] Array devices(std::string_view name) const;
};

/// The rules for agents, one after the other, each tried on the agent and told of in a line.
/// Whatever a trial changes it puts back.
class Rules {
public:
    enum class Extent : bool {
        /// What nobody notices.
        Quiet,
        /// A test of the shutdown, a Pushover check and the agent's end as well.
        All
    };

    /// `patience` is for what the agent needs the network or a test for.
    Rules(Conversation& agent, std::chrono::seconds patience)
        : agent_(agent), patience_(patience) {}

    void check(Extent extent);
    [[nodiscard]] int broken() const { return broken_; }
    /// Prints how many rules were kept, broken and not tried.
    void summarize() const;

private:
    /// Tells of a rule; a fault is what was seen instead.
    void tell(std::string_view rule, const QString& fault);
    void skip(std::string_view rule);

    /// Whether the agent answers at all.
    bool presence();
    void answering();
    void form(const Answer& answer);
    void listedDevices(const Answer& answer);
    void settings();
    void tryBoolean(std::string_view key);
    void trySeconds(std::string_view key);
    void tryText(std::string_view key);
    [[nodiscard]] bool isStored(std::string_view key, const Value& value);
    void protection();
    void saving();
    void savingConnected();
    void nonsense();
    void testing();
    void pushover();
    void quitting();
    void unasked();

    /// Sends a ping; what was heard before its answer, or nothing when none came in time.
    std::optional<std::vector<Heard>> heardBeforePing();
    Answer ask();
    void change(std::string_view key, const Value& value);

    Conversation& agent_;
    std::chrono::seconds patience_;
    QString notStored_; ///< keys, with blanks
    int kept_ = 0;
    int broken_ = 0;
    int skipped_ = 0;
};

} // namespace zarvil::check
