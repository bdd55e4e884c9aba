#include "pane/Outlets.h"

#include "controls/KXButtonCell.h"
#include "devices/ZVCollectionItem.h"
#include "scripts/ZVScriptCollectionItem.h"

namespace zarvil {

namespace {

std::unique_ptr<ButtonCell> switchCell(Platform& platform) {
    return std::make_unique<KXButtonCell>(platform.stickyClick, platform.clock);
}

std::shared_ptr<CollectionViewItem> deviceItem() { return std::make_shared<ZVCollectionItem>(); }

CollectionView::Prototype scriptItem(Platform& platform, ScriptProgress& progress) {
    return [&] { return std::make_shared<ZVScriptCollectionItem>(platform, progress); };
}

} // namespace

Outlets::Outlets(Platform& platform)
    : togglePowerButton(ButtonKind::Toggle, switchCell(platform)),
      connectedDevices(arrayController, deviceItem),
      selectedDevices(savedArrayController, deviceItem),
      toggleMinSec(ButtonKind::Toggle, switchCell(platform)),
      scriptProgress(platform),
      scriptsCollection(scriptsArrayController, scriptItem(platform, scriptProgress)) {
    showAgentAsAbsent();
    greyWhatNeedsTheAgent();
    pushValidationStatus.setHidden(true);
    noBusDesc.setStringValue(platform.strings.localizedString(
        "There is no session bus, so Zarvil cannot be reached. Trying again…"));
    noBusDesc.setHidden(true);
}

void Outlets::showAgentAsAbsent() {
    onDesc.setHidden(true);
    launchedDesc.setHidden(true);
    launchButton.setTitle("Launch Zarvil");
    launchButton.setAction("launchApp:");
}

void Outlets::greyWhatNeedsTheAgent() {
    for (Control* control : std::initializer_list<Control*>{&togglePowerButton,
                                                            &launchAtLogin,
                                                            &showIcon,
                                                            &monoIcon,
                                                            &forceQuit,
                                                            &hideConnectMessage,
                                                            &showShutdownMessage,
                                                            &hideShutdownMessageButton,
                                                            &hideShutdownMessage,
                                                            &shutdownDelayText,
                                                            &toggleMinSec,
                                                            &showFailureNotifi,
                                                            &testSettingsButton,
                                                            &sendEmail,
                                                            &usePushover,
                                                            &pushUserName,
                                                            &pushDeviceName,
                                                            &pushValidate,
                                                            &useScriptsButton,
                                                            &scriptsTitle,
                                                            &createNewScript,
                                                            &checkForUpdates,
                                                            &checkForUpdatesNow,
                                                            &viewLogButton})
        control->setEnabled(false);
    emailLabel.setAlphaValue(alpha::dimmedCaption);
    shutdownDelayLabel.setAlphaValue(alpha::dimmedCaption);
}

} // namespace zarvil
