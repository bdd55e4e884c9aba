#pragma once

#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

#import "cocoa/controls/ZVPlaceholderView.h"
#import "cocoa/controls/ZVRowViews.h"
#import "cocoa/controls/ZVSymbolView.h"

#include <memory>

namespace zarvil::cocoa {
struct LoadedPane;
}

/// Every outlet, with its class. The array controllers belong to the collection views; what is
/// named after a field shows its fault.
#define ZV_OUTLETS(OUTLET)                                                                         \
    OUTLET(NSView, authView)                                                                       \
    OUTLET(NSTabView, tabView)                                                                     \
    OUTLET(NSButton, togglePowerButton)                                                            \
    OUTLET(NSTextField, onDesc)                                                                    \
    OUTLET(NSTextField, offDesc)                                                                   \
    OUTLET(NSButton, launchButton)                                                                 \
    OUTLET(NSTextField, launchedDesc)                                                              \
    OUTLET(NSTextField, notLaunchedDesc)                                                           \
    OUTLET(NSCollectionView, connectedDevices)                                                     \
    OUTLET(NSCollectionView, selectedDevices)                                                      \
    OUTLET(NSArrayController, arrayController)                                                     \
    OUTLET(NSArrayController, savedArrayController)                                                \
    OUTLET(NSButton, showIcon)                                                                     \
    OUTLET(NSButton, monoIcon)                                                                     \
    OUTLET(NSButton, forceQuit)                                                                    \
    OUTLET(NSButton, showConnectMessage)                                                           \
    OUTLET(NSTextField, hideConnectMessage)                                                        \
    OUTLET(NSButton, showShutdownMessage)                                                          \
    OUTLET(NSTextField, hideShutdownMessage)                                                       \
    OUTLET(NSButton, hideShutdownMessageButton)                                                    \
    OUTLET(NSTextField, shutdownDelayText)                                                         \
    OUTLET(NSTextField, shutdownDelayLabel)                                                        \
    OUTLET(NSButton, toggleMinSec)                                                                 \
    OUTLET(NSButton, testSettingsButton)                                                           \
    OUTLET(NSButton, launchAtLogin)                                                                \
    OUTLET(NSButton, showFailureNotifi)                                                            \
    OUTLET(NSButton, checkForUpdates)                                                              \
    OUTLET(NSButton, checkForUpdatesNow)                                                           \
    OUTLET(NSButton, viewLogButton)                                                                \
    OUTLET(NSButton, uninstallButton)                                                              \
    OUTLET(NSPanel, uninstallModal)                                                                \
    OUTLET(NSButton, link)                                                                         \
    OUTLET(NSButton, sendEmail)                                                                    \
    OUTLET(NSTextField, email)                                                                     \
    OUTLET(NSTextField, emailLabel)                                                                \
    OUTLET(NSButton, usePushover)                                                                  \
    OUTLET(NSTextField, pushUserName)                                                              \
    OUTLET(NSTextField, pushDeviceName)                                                            \
    OUTLET(NSButton, pushValidate)                                                                 \
    OUTLET(NSProgressIndicator, pushIndicator)                                                     \
    OUTLET(NSView, pushBox)                                                                        \
    OUTLET(NSTextField, pushValidationStatus)                                                      \
    OUTLET(NSButton, useScriptsButton)                                                             \
    OUTLET(NSTextField, scriptsTitle)                                                              \
    OUTLET(NSButton, createNewScript)                                                              \
    OUTLET(NSCollectionView, scriptsCollection)                                                    \
    OUTLET(NSArrayController, scriptsArrayController)                                              \
    OUTLET(ZVPlaceholderView, noneConnected)                                                       \
    OUTLET(ZVPlaceholderView, noneWatched)                                                         \
    OUTLET(ZVPlaceholderView, devicesUnknown)                                                      \
    OUTLET(ZVPlaceholderView, noScripts)                                                           \
    OUTLET(ZVSymbolView, statusSymbol)                                                             \
    OUTLET(NSProgressIndicator, statusIndicator)                                                   \
    OUTLET(NSTextField, statusLine)                                                                \
    OUTLET(NSButton, chooseDevices)                                                                \
    OUTLET(ZVBannerView, agentRow)                                                                 \
    OUTLET(ZVSymbolView, agentSymbol)                                                              \
    OUTLET(NSProgressIndicator, agentIndicator)                                                    \
    OUTLET(NSTextField, agentHint)                                                                 \
    OUTLET(ZVSymbolView, lockSymbol)                                                               \
    OUTLET(NSTextField, lockLine)                                                                  \
    OUTLET(NSTextField, devicesHint)                                                               \
    OUTLET(NSTextField, connectedCount)                                                            \
    OUTLET(NSTextField, watchedCount)                                                              \
    OUTLET(NSTextField, delayHint)                                                                 \
    OUTLET(NSTextField, testHint)                                                                  \
    OUTLET(NSProgressIndicator, testIndicator)                                                     \
    OUTLET(NSTextField, connectMessageHint)                                                        \
    OUTLET(NSTextField, emailHint)                                                                 \
    OUTLET(ZVSymbolView, verdictSymbol)                                                            \
    OUTLET(NSTextField, shutdownDelayTextFault)                                                    \
    OUTLET(NSTextField, scriptsTitleFault)

/// Every action of a control, by the first keyword of its selector.
#define ZV_ACTIONS(ACTION)                                                                         \
    ACTION(launchApp)                                                                              \
    ACTION(quitApp)                                                                                \
    ACTION(toggleOnOff)                                                                            \
    ACTION(toggleShowIcon)                                                                         \
    ACTION(toggleMonoIcon)                                                                         \
    ACTION(toggleForceQuit)                                                                        \
    ACTION(setShouldLaunchAtLogin)                                                                 \
    ACTION(showFailNotifi)                                                                         \
    ACTION(autoUpdates)                                                                            \
    ACTION(toggleShowConnectedMessage)                                                             \
    ACTION(toggleShowShutdownMessage)                                                              \
    ACTION(setShutdownDelay)                                                                       \
    ACTION(toggleMinutesSeconds)                                                                   \
    ACTION(testShutdown)                                                                           \
    ACTION(setUserEmail)                                                                           \
    ACTION(useEmailNotifications)                                                                  \
    ACTION(usePushoverAction)                                                                      \
    ACTION(setUserId)                                                                              \
    ACTION(setDeviceId)                                                                            \
    ACTION(validatePushover)                                                                       \
    ACTION(goToPushover)                                                                           \
    ACTION(create)                                                                                 \
    ACTION(useScripts)                                                                             \
    ACTION(updateNewScriptsTitle)                                                                  \
    ACTION(unistallAction)                                                                         \
    ACTION(unistall)                                                                               \
    ACTION(uninstallSheetFinished)                                                                 \
    ACTION(viewLog)                                                                                \
    ACTION(checkForUpdates)                                                                        \
    ACTION(setCheckForUpdatesAutomatically)                                                        \
    ACTION(openLink)                                                                               \
    ACTION(support)                                                                                \
    ACTION(fbLike)                                                                                 \
    ACTION(tweet)                                                                                  \
    ACTION(feedback)

/// The pane's principal class: gives the core's controller what the layout and the system hold,
/// and hands the host's calls on to it. Without a main view it does nothing.
@interface Zarvil_Preferences : NSPreferencePane {
    std::unique_ptr<zarvil::cocoa::LoadedPane> _loaded;
#define ZV_VARIABLE(Class, name) Class* name;
    ZV_OUTLETS(ZV_VARIABLE)
#undef ZV_VARIABLE
}

#define ZV_PROPERTY(Class, name) @property(retain) IBOutlet Class* name;
ZV_OUTLETS(ZV_PROPERTY)
#undef ZV_PROPERTY

#define ZV_METHOD(name) -(IBAction)name : (id)sender;
ZV_ACTIONS(ZV_METHOD)
#undef ZV_METHOD

/// Explains the page that is shown, in a window of its own.
- (IBAction)showHelp:(id)sender;
/// Whether the user has opened the lock.
- (BOOL)isUnlocked;
- (void)setInterfaceEnabled:(BOOL)enabled;

@end
