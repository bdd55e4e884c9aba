#pragma once

#include "PaneOnFakes.h"
#include "protocol/Messages.h"

#include <gtest/gtest.h>

#include <ostream>

namespace zarvil {

/// How a failed comparison shows a payload.
inline std::ostream& operator<<(std::ostream& out, const Value& value) {
    if (const auto* text = value.as<std::string>())
        return out << '"' << *text << '"';
    if (const auto* nested = value.as<Dictionary>()) {
        out << "{ ";
        for (const auto& [key, entry] : nested->entries())
            out << key << ": " << entry << " ";
        return out << "}";
    }
    if (const auto* array = value.as<Array>()) {
        out << "[ ";
        for (const Value& element : *array)
            out << element << " ";
        return out << "]";
    }
    return out << value.doubleValue();
}
inline std::ostream& operator<<(std::ostream& out, const Message& sent) {
    return out << sent.name << " " << Value(sent.info());
}

/// A pane under test. The test presses the models' controls as a user would and plays the agent by
/// posting the agent's messages.
class PaneHarness : public testing::Test, protected PaneOnFakes {
protected:
    PaneHarness() {
        for (const std::string_view name : message::paneToAgent)
            sniffers_.push_back(bus.addObserver(
                name, [this](const Message& sent) { sentMessages.push_back(sent); }));
    }

    /// Loads the pane and forgets what it sent on the way.
    void load() {
        pane.mainViewDidLoad();
        pane.willSelect();
        takeSent();
    }

    /// Loads the pane and brings the agent up: settings first, then the protection state.
    void loadWithAgent(const Dictionary& settings = {}, bool protection = true) {
        load();
        agentSends(Message(message::savedPrefs, settings));
        agentSends(Message(message::stateChanged, Dictionary{{"state", protection}}));
        takeSent();
    }

    void agentSends(Message message) {
        bus.post(std::move(message));
        bus.deliver();
    }
    void agentSends(std::string_view name) { agentSends(Message(name)); }

    /// Types a text into a field and ends the edit with Return.
    void enter(TextField& field, std::string_view text) {
        field.userDidEdit(text);
        field.userDidPressReturn();
    }

    /// What the pane has sent since the last call, in order.
    std::vector<Message> takeSent() {
        bus.deliver();
        return std::exchange(sentMessages, {});
    }
    /// The same, as names.
    std::vector<std::string> takeSentNames() {
        std::vector<std::string> names;
        for (const Message& sent : takeSent())
            names.push_back(sent.name);
        return names;
    }

    static Message settingChange(std::string_view key, Value value) {
        return {message::prefsChanged,
                Dictionary{{std::string(payload::prefKey), key},
                           {std::string(payload::prefObj), std::move(value)}}};
    }

private:
    std::vector<Message> sentMessages;
    std::vector<Subscription> sniffers_;
};

} // namespace zarvil
