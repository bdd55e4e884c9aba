#include "alerts/EmailAddress.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Settings.h"

namespace zarvil {

void Zarvil_Preferences::showSavedEmail(const Dictionary& settings) {
    const std::string* address = settings.stringForKey(setting::emailAddress);
    if (address && !address->empty())
        sendEmail.setOn(settings.boolForKey(setting::useEmailNotifi));
    email.setStringValue(address ? *address : std::string());
}

bool Zarvil_Preferences::validEmail(std::string_view address) {
    return matchesEmailPattern(address);
}

// An invalid address is dropped without a word; the field keeps what the user typed.
void Zarvil_Preferences::setUserEmail(Control* sender) {
    const auto* field = dynamic_cast<TextField*>(sender);
    if (field && validEmail(field->stringValue()))
        postSetting(setting::emailAddress, field->stringValue());
}

void Zarvil_Preferences::useEmailNotifications(Control* sender) {
    postState(setting::useEmailNotifi, sender);
}

} // namespace zarvil
