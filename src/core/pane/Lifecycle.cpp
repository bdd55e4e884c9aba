#include "controls/Hyperlink.h"
#include "controls/KXButtonCell.h"
#include "pane/Product.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

namespace zarvil {

namespace {

constexpr double pingPeriod = 3.0; // seconds

} // namespace

Zarvil_Preferences::Zarvil_Preferences(Platform& platform)
    : Outlets(platform),
      guidance(*this, platform.strings),
      platform_(platform),
      scriptTexts_(platform.timers, platform.files) {
    connectedDevices.setDelegate(this);
    selectedDevices.setDelegate(this);
    scriptsCollection.setItemWasMade([this](CollectionViewItem& item) { scriptItemWasMade(item); });
    visitOutlets(*this, [this](std::string_view /*name*/, View& outlet) {
        if (auto* control = dynamic_cast<Control*>(&outlet))
            control->setTarget(this);
        if (auto* field = dynamic_cast<TextField*>(&outlet))
            field->setNotificationCenter(&textChanges_);
    });
}

Zarvil_Preferences::~Zarvil_Preferences() {
    // A script that runs ends with the pane, and what it held back must not follow.
    platform_.handlers.discard();
}

void Zarvil_Preferences::mainViewDidLoad() {
    devices.clear();
    setUpAuthorization();
    appId = product::agentIdentifier;
    link.setAttributedTitle(hyperlinkFromString(std::string(product::website), product::website));
    lostConnection = true;
    for (View* dimmed : std::initializer_list<View*>{&connectedDevices, &selectedDevices,
                                                     &scriptsCollection, &pushBox})
        dimmed->setAlphaValue(alpha::dimmed);
    registerForAgentMessages();
    post(message::prefsLoaded);
    appTimer = platform_.handlers.schedule(platform_.timers, pingPeriod, Repetition::Repeating,
                                           [this] { appStatus(); });
    if (auto* cell = toggleMinSec.cellAs<KXButtonCell>()) {
        cell->setOnTitle(platform_.strings.localizedString("Min"));
        cell->setOffTitle(platform_.strings.localizedString("Sec"));
        cell->setShowStateExtras(true);
    }
    restoreDelayUnit();
    setUpDelayField();
    scriptsTitle.setDelegate(this);
}

void Zarvil_Preferences::setUpAuthorization() {
    authView.onClick = [this] {
        platform_.handlers.run([this] {
            guidance.lockWasClicked();
            clickLock();
        });
    };
    authView.onUpdateStatus = [this] { checkAuthorization(Interaction::None); };
    authView.setAuthorizationRights({{std::string(product::adminRight)}});
    authView.setDelegate(this);
    authView.updateStatus();
}

void Zarvil_Preferences::clickLock() {
    if (!isUnlocked()) {
        checkAuthorization(Interaction::MayAskUser);
        return;
    }
    platform_.authorization.release(product::adminRight);
    authView.show(authorizationState::locked, {});
}

void Zarvil_Preferences::checkAuthorization(Interaction interaction) {
    if (authView.authorizationState() == authorizationState::inProgress)
        return;
    authView.show(authorizationState::inProgress, {});
    platform_.authorization.check(
        product::adminRight, interaction,
        [this, alive = std::weak_ptr<char>(lifetime_)](const AuthorizationOutcome& outcome) {
            // The user may take minutes to answer, and the pane may be gone by then.
            if (alive.expired())
                return;
            platform_.handlers.run(
                [this](const AuthorizationOutcome& decided) {
                    guidance.authorityIsMissing(decided.missing);
                    authView.show(decided.granted ? authorizationState::unlocked
                                                  : authorizationState::locked,
                                  decided.reason);
                },
                outcome);
        });
}

bool Zarvil_Preferences::isUnlocked() const {
    return authView.authorizationState() == authorizationState::unlocked;
}

void Zarvil_Preferences::willSelect() {
    for (TextField* field : {&scriptsTitle, &pushUserName})
        textChanges_.addTextObserver(this, *field, [this](TextField& edited) {
            platform_.handlers.run([this, &edited] { scriptsTitleChanged(edited); });
        });
}

UnselectReply Zarvil_Preferences::shouldUnselect() {
    textChanges_.removeObserver(this);
    return UnselectReply::Now;
}

void Zarvil_Preferences::willUnselect() { closeTip(); }

void Zarvil_Preferences::didUnselect() { closeTip(); }

void Zarvil_Preferences::closeTip() {
    if (ttip)
        std::exchange(ttip, nullptr)->close();
}

void Zarvil_Preferences::setInterfaceEnabled(bool enabled) {
    const bool effective = enabled && !lostConnection;
    const double captionAlpha = effective ? alpha::active : alpha::dimmedCaption;
    emailLabel.setAlphaValue(captionAlpha);
    shutdownDelayLabel.setAlphaValue(captionAlpha);
    uninstallButton.setEnabled(true);
    showIcon.setEnabled(effective);
    monoIcon.setEnabled(effective && showIcon.isOn());
    testSettingsButton.setEnabled(effective && state && !testing);
    for (Control* control : std::initializer_list<Control*>{
             &checkForUpdatesNow, &checkForUpdates, &launchAtLogin, &shutdownDelayText, &sendEmail,
             &forceQuit, &showShutdownMessage, &viewLogButton, &showFailureNotifi, &toggleMinSec,
             &usePushover})
        control->setEnabled(effective);
    setPushoverEnabled(effective);
    scriptsTitle.setEnabled(effective && useScriptsButton.isOn());
    scriptsTitle.setStringValue("");
    createNewScript.setEnabled(false);
    if (effective && useScriptsButton.state() == buttonState::on)
        loadScripts();
    else
        unloadScripts();
    scriptsCollection.setAlphaValue(effective ? alpha::active : alpha::dimmed);
    useScriptsButton.setEnabled(effective);
}

} // namespace zarvil
