#include "pane/Zarvil_Preferences.h"
#include "protocol/Settings.h"

namespace zarvil {

void Zarvil_Preferences::showSavedEmail(const Dictionary& settings) {
    const std::string* address = settings.stringForKey(setting::emailAddress);
    if (address && !address->empty())
        sendEmail.setState(settings.boolForKey(setting::useEmailNotifi) ? buttonState::on
                                                                        : buttonState::off);
    email.setStringValue(address ? *address : std::string());
}

void Zarvil_Preferences::setUserEmail(Control* /*sender*/) {}
void Zarvil_Preferences::useEmailNotifications(Control* /*sender*/) {}

} // namespace zarvil
