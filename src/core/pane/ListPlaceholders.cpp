#include "pane/ListPlaceholders.h"

namespace zarvil {

ListPlaceholders::ListPlaceholders(Lists lists, const StringTable& strings)
    : lists_(lists), strings_(strings) {
    noneConnected.setText(
        text(Symbol::Plug, "No device connected",
             "Connect a power supply with a data cable. It appears here by itself."));
    noneWatched.setText(
        text(Symbol::Eye, "No device watched",
             "Tick a connected device. Until then a power failure goes unnoticed."));
    devicesUnknown.setText(text(Symbol::Plug, "No devices to show",
                                "Your devices are listed here while Zarvil runs."));
    const auto follow = [this](const auto& property, void (ListPlaceholders::*show)()) {
        changes_.push_back(
            property.observe([this, show](const auto&, Transition) { (this->*show)(); }));
    };
    follow(lists.connected.rowCountProperty(), &ListPlaceholders::showDevices);
    follow(lists.connected.alphaProperty(), &ListPlaceholders::showDevices);
    follow(lists.watched.rowCountProperty(), &ListPlaceholders::showDevices);
    follow(lists.scripts.rowCountProperty(), &ListPlaceholders::showScripts);
    follow(lists.useScripts.enabledProperty(), &ListPlaceholders::showScripts);
    follow(lists.useScripts.stateProperty(), &ListPlaceholders::showScripts);
}

void ListPlaceholders::showDevices() {
    const bool connected = lists_.connected.rowCount() > 0;
    const bool watched = lists_.watched.rowCount() > 0;
    // The lists are dimmed exactly while the agent is absent.
    const bool unknown = !connected && !watched && lists_.connected.alphaValue() < alpha::active;
    noneConnected.setHidden(unknown || connected);
    noneWatched.setHidden(unknown || watched);
    devicesUnknown.setHidden(!unknown);
}

void ListPlaceholders::showScripts() {
    const bool empty = lists_.scripts.rowCount() == 0;
    noScripts.setHidden(!empty);
    if (empty)
        noScripts.setText(scriptsText());
}

Placeholder::Text ListPlaceholders::text(Symbol symbol, std::string_view title,
                                         std::string_view words) const {
    return {symbol, strings_.localizedString(title), strings_.localizedString(words)};
}

Placeholder::Text ListPlaceholders::scriptsText() const {
    // The switch is greyed exactly while the agent is absent.
    if (!lists_.useScripts.isEnabled())
        return text(Symbol::Script, "No scripts to show",
                    "Your scripts are listed here while Zarvil runs.");
    if (lists_.useScripts.state() == buttonState::off)
        return text(Symbol::Script, "Scripts are off",
                    "They are kept. Switch them on to see them.");
    return text(Symbol::Script, "No scripts yet", "Type a title above to create the first one.");
}

} // namespace zarvil
