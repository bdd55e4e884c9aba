#pragma once

#include "interface/AuthorizationView.h"
#include "interface/Button.h"
#include "interface/CollectionView.h"
#include "interface/Panel.h"
#include "interface/ProgressIndicator.h"
#include "interface/TextField.h"
#include "pane/Platform.h"
#include "scripts/ScriptProgress.h"

namespace zarvil {

/// The interface objects of the pane, under the names by which a layout wires them. They start as
/// designed: the look of an absent agent, every control that needs it greyed.
class Outlets {
public:
    explicit Outlets(Platform& platform);

    // Around the tabs.
    View tabView;
    AuthorizationView authView;
    Button togglePowerButton;
    TextField onDesc;
    TextField offDesc;
    Button launchButton;
    TextField launchedDesc;
    TextField notLaunchedDesc;
    /// Shown while there is nothing that carries messages to the agent.
    TextField noBusDesc;

    // Devices.
    ArrayController arrayController;
    ArrayController savedArrayController;
    CollectionView connectedDevices;
    CollectionView selectedDevices;

    // General.
    Button launchAtLogin{ButtonKind::Toggle};
    Button showIcon{ButtonKind::Toggle};
    Button monoIcon{ButtonKind::Toggle};
    Button forceQuit{ButtonKind::Toggle};
    Button showConnectMessage{ButtonKind::Toggle};
    TextField hideConnectMessage;
    Button showShutdownMessage{ButtonKind::Toggle};
    TextField hideShutdownMessage;
    Button hideShutdownMessageButton{ButtonKind::Toggle};
    TextField shutdownDelayText;
    TextField shutdownDelayLabel;
    Button toggleMinSec;
    Button showFailureNotifi{ButtonKind::Toggle};
    Button testSettingsButton;

    // Alerts.
    Button sendEmail{ButtonKind::Toggle};
    TextField email;
    TextField emailLabel;
    Button usePushover{ButtonKind::Toggle};
    View pushBox;
    TextField pushUserName;
    TextField pushDeviceName;
    Button pushValidate;
    ProgressIndicator pushIndicator;
    TextField pushValidationStatus;

    // Scripts.
    ArrayController scriptsArrayController;
    Button useScriptsButton{ButtonKind::Toggle};
    TextField scriptsTitle;
    Button createNewScript;
    ScriptProgress scriptProgress;
    CollectionView scriptsCollection;

    // Maintenance.
    Button checkForUpdates{ButtonKind::Toggle};
    Button checkForUpdatesNow;
    Button viewLogButton;
    Button uninstallButton;
    Panel uninstallModal;
    Button link;

private:
    void showAgentAsAbsent();
    void greyWhatNeedsTheAgent();
};

/// Calls `visitor(name, outlet)` for every outlet that a layout shows. The array controllers are
/// not among them: the collection views show their content.
template <typename Visitor>
void visitOutlets(Outlets& outlets, Visitor&& visitor) {
    visitor("tabView", outlets.tabView);
    visitor("authView", outlets.authView);
    visitor("togglePowerButton", outlets.togglePowerButton);
    visitor("onDesc", outlets.onDesc);
    visitor("offDesc", outlets.offDesc);
    visitor("launchButton", outlets.launchButton);
    visitor("launchedDesc", outlets.launchedDesc);
    visitor("notLaunchedDesc", outlets.notLaunchedDesc);
    visitor("noBusDesc", outlets.noBusDesc);

    visitor("connectedDevices", outlets.connectedDevices);
    visitor("selectedDevices", outlets.selectedDevices);

    visitor("launchAtLogin", outlets.launchAtLogin);
    visitor("showIcon", outlets.showIcon);
    visitor("monoIcon", outlets.monoIcon);
    visitor("forceQuit", outlets.forceQuit);
    visitor("showConnectMessage", outlets.showConnectMessage);
    visitor("hideConnectMessage", outlets.hideConnectMessage);
    visitor("showShutdownMessage", outlets.showShutdownMessage);
    visitor("hideShutdownMessage", outlets.hideShutdownMessage);
    visitor("hideShutdownMessageButton", outlets.hideShutdownMessageButton);
    visitor("shutdownDelayText", outlets.shutdownDelayText);
    visitor("shutdownDelayLabel", outlets.shutdownDelayLabel);
    visitor("toggleMinSec", outlets.toggleMinSec);
    visitor("showFailureNotifi", outlets.showFailureNotifi);
    visitor("testSettingsButton", outlets.testSettingsButton);

    visitor("sendEmail", outlets.sendEmail);
    visitor("email", outlets.email);
    visitor("emailLabel", outlets.emailLabel);
    visitor("usePushover", outlets.usePushover);
    visitor("pushBox", outlets.pushBox);
    visitor("pushUserName", outlets.pushUserName);
    visitor("pushDeviceName", outlets.pushDeviceName);
    visitor("pushValidate", outlets.pushValidate);
    visitor("pushIndicator", outlets.pushIndicator);
    visitor("pushValidationStatus", outlets.pushValidationStatus);

    visitor("useScriptsButton", outlets.useScriptsButton);
    visitor("scriptsTitle", outlets.scriptsTitle);
    visitor("createNewScript", outlets.createNewScript);
    visitor("scriptsCollection", outlets.scriptsCollection);

    visitor("checkForUpdates", outlets.checkForUpdates);
    visitor("checkForUpdatesNow", outlets.checkForUpdatesNow);
    visitor("viewLogButton", outlets.viewLogButton);
    visitor("uninstallButton", outlets.uninstallButton);
    visitor("uninstallModal", outlets.uninstallModal);
    visitor("link", outlets.link);
}

} // namespace zarvil
