#pragma once

#include "interface/Banner.h"
#include "interface/Symbol.h"
#include "pane/Outlets.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zarvil {

/// The pages of the pane, in the order of their tabs.
enum class Tab : std::uint8_t { Devices, General, Alerts, Scripts, About };

/// What the pane says of its own state, in words and pictures, beside the outlets: whether the
/// computer is protected, what an absent agent means and why a control is greyed. It follows the
/// outlets and changes none of them; what they do not tell comes in by the events below.
///
/// A layout shows these models under their names, as it does the outlets.
class Guidance final : private ActionTarget {
public:
    /// Both must outlive the guidance.
    Guidance(Outlets& outlets, const StringTable& strings);

    // Events in.
    void agentDidAnswer();
    /// `installed` is whether there is an agent that could be launched.
    void agentDidNotAnswer(bool installed);
    /// The user wished to launch the agent; `possible` is whether anything could be started.
    void launchDidBegin(bool possible);
    void deviceDidConnect(const Dictionary& device);
    void deviceDidDisconnect(const Dictionary& device);
    /// In the course of `change` many devices come and go: their number is told once, at the end.
    void whileDevicesChange(const std::function<void()>& change);
    void testDidChange(bool running);
    /// The delay that the agent has, in seconds; nothing while it is not known.
    void delayDidChange(std::optional<std::int64_t> seconds);
    /// Whether messages can reach an agent at all.
    void busDidChange(bool answers);
    void lockWasClicked();
    /// The name of the authority that could not be asked about the lock; empty for none.
    void authorityIsMissing(const std::string& name);

    // The page that is shown; the user's choice and the pane's own go the same way.
    void selectTab(Tab tab) { selectedTab_.set(tab); }
    [[nodiscard]] const Property<Tab>& selectedTabProperty() const { return selectedTab_; }

    /// What an assistive program shall say at once, wherever its user is; not replayed.
    [[nodiscard]] Subscription
    observeAnnouncements(std::function<void(const std::string&)> observer) {
        return announcements_.add(std::move(observer));
    }
    void announce(const std::string& words) { announcements_.notify(words); }

    // Around the tabs.
    SymbolView statusSymbol;
    ProgressIndicator statusIndicator;
    TextField statusLine;
    Button chooseDevices;
    Banner agentRow;
    SymbolView agentSymbol;
    ProgressIndicator agentIndicator;
    TextField agentHint;
    SymbolView lockSymbol;
    TextField lockLine;

    // Devices.
    TextField devicesHint;
    TextField connectedCount;
    TextField watchedCount;

    // General.
    TextField delayHint;
    TextField testHint;
    ProgressIndicator testIndicator;
    TextField connectMessageHint;

    // Alerts.
    TextField emailHint;
    SymbolView verdictSymbol;

private:
    enum class Presence : std::uint8_t { Unknown, Running, Absent };

    [[nodiscard]] std::string text(std::string_view key) const;
    [[nodiscard]] std::string delayInWords() const;
    [[nodiscard]] std::string protectionInWords() const;
    void performAction(std::string_view action, Control* sender) override;
    void setPresence(Presence presence);
    void announceDevice(std::string_view words, const Dictionary& device);

    void observeOutlets();
    void showStatus();
    void showAgent();
    void showConnected();
    void showWatched();
    void showCount(TextField& field, const ArrayController& list);
    void showDelayHint();
    void showTest();
    void showWhatIsNotStored();
    void showLock();

    Outlets& outlets_;
    const StringTable& strings_;
    Property<Tab> selectedTab_{Tab::Devices};
    Presence presence_ = Presence::Unknown;
    bool busAnswers_ = true;
    bool launching_ = false;
    bool installed_ = true;
    bool manyDevicesChange_ = false;
    bool testing_ = false;
    bool testEnded_ = false;
    bool lockClicked_ = false;
    std::string missingAuthority_;
    std::optional<std::int64_t> delay_;
    ObserverList<const std::string&> announcements_;
    std::vector<Subscription> subscriptions_;
};

/// Calls `visitor(name, model)` for everything that a layout shows of the guidance.
template <typename Visitor>
void visitGuidance(Guidance& guidance, Visitor&& visitor) {
    visitor("statusSymbol", guidance.statusSymbol);
    visitor("statusIndicator", guidance.statusIndicator);
    visitor("statusLine", guidance.statusLine);
    visitor("chooseDevices", guidance.chooseDevices);
    visitor("agentRow", guidance.agentRow);
    visitor("agentSymbol", guidance.agentSymbol);
    visitor("agentIndicator", guidance.agentIndicator);
    visitor("agentHint", guidance.agentHint);
    visitor("lockSymbol", guidance.lockSymbol);
    visitor("lockLine", guidance.lockLine);
    visitor("devicesHint", guidance.devicesHint);
    visitor("connectedCount", guidance.connectedCount);
    visitor("watchedCount", guidance.watchedCount);
    visitor("delayHint", guidance.delayHint);
    visitor("testHint", guidance.testHint);
    visitor("testIndicator", guidance.testIndicator);
    visitor("connectMessageHint", guidance.connectMessageHint);
    visitor("emailHint", guidance.emailHint);
    visitor("verdictSymbol", guidance.verdictSymbol);
}

} // namespace zarvil
