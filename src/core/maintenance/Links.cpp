#include "pane/Product.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"
#include "protocol/Settings.h"

namespace zarvil {

namespace {

bool isUnreserved(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~").find(c) != std::string_view::npos;
}

/// As the value of a query key: all but the unreserved characters of URLs as "%" and two digits.
std::string urlEncoded(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        if (isUnreserved(c)) {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += digits[byte / digits.size()];
        encoded += digits[byte % digits.size()];
    }
    return encoded;
}

std::string recommendation() {
    return "Zarvil shuts my computer down in order when the power fails: " +
           std::string(product::productPage) + " by " + std::string(product::makerAccount);
}

} // namespace

void Zarvil_Preferences::viewLog(Control* /*sender*/) { post(message::viewLog); }

void Zarvil_Preferences::checkForUpdatesNowAction(Control* /*sender*/) {
    post(message::checkForUpdates);
}

void Zarvil_Preferences::setCheckForUpdatesAutomatically(Control* sender) {
    const auto* box = dynamic_cast<Button*>(sender);
    if (!box)
        return;
    // The delay field follows the update switch on purpose; `autoUpdates` leaves it alone.
    shutdownDelayText.setEnabled(!box->isOn());
    postState(setting::enableAutomaticChecks, sender);
}

void Zarvil_Preferences::openLink(Control* sender) {
    std::optional<std::string> address;
    if (const auto* button = dynamic_cast<Button*>(sender)) {
        if (const auto attributes = button->attributedTitle().attributesAt(0))
            address = attributes->link;
    }
    openURL(address ? std::string_view(*address) : product::website);
}

void Zarvil_Preferences::support(Control* /*sender*/) { openURL(product::supportPage); }

void Zarvil_Preferences::fbLike(Control* /*sender*/) { openURL(product::socialPage); }

void Zarvil_Preferences::tweet(Control* /*sender*/) {
    openURL(std::string(product::composePost) + "?button_hashtag=" + urlEncoded(product::hashtag) +
            "&text=" + urlEncoded(recommendation()));
}

void Zarvil_Preferences::feedback(Control* /*sender*/) {
    openURL("mailto:" + std::string(product::feedbackMailbox) + "?SUBJECT=Feedback");
}

// An address that nothing can open is left at that.
void Zarvil_Preferences::openURL(std::string_view url) { platform_.workspace.openURL(url); }

} // namespace zarvil
