#import "cocoa/pane/Zarvil_Preferences.h"

#import "cocoa/adapters/CocoaPlatform.h"
#import "cocoa/binding/AlertPanel.h"
#import "cocoa/binding/Assistance.h"
#import "cocoa/binding/HelpPanel.h"
#import "cocoa/binding/Layout.h"
#import "cocoa/binding/Localization.h"
#import "cocoa/binding/OutletBinder.h"
#import "cocoa/binding/ScriptPanel.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"

#include "pane/Help.h"
#include "pane/Zarvil_Preferences.h"

#include <cstdlib>

@interface Zarvil_Preferences ()
- (NSView*)loadLayout;
@end

namespace zarvil::cocoa {

namespace {

/// Where a trial keeps the product instead of at the file system's root.
std::string trialRoot() {
    const char* root = std::getenv("ZARVIL_ROOT");
    return root ? root : "";
}

/// What stands for a layout that does not load: a host wants a view of every pane.
NSView* newViewOfNoLayout() {
    constexpr NSRect frame{{0, 0}, {595, 160}};
    // Without any font no layout loads, and no text can be drawn.
    if (![NSFont systemFontOfSize:0])
        return [[NSView alloc] initWithFrame:frame];
    ZVPlaceholderView* view = [[ZVPlaceholderView alloc] initWithFrame:frame];
    const CocoaStringTable strings;
    const Placeholder::Text text{
        Symbol::Warning, strings.localizedString("The operation could not be completed."), {}};
    [view showText:text];
    return view;
}

} // namespace

/// In the order of construction: what is below uses what is above.
struct LoadedPane {
    explicit LoadedPane(::Zarvil_Preferences* owner)
        : platform(trialRoot()), controller(platform.platform()) {
        localizeTexts([owner mainView], platform.platform().strings);
        localizeTexts([[owner uninstallModal] contentView], platform.platform().strings);
        for (const std::string& fault :
             bindOutlets(controller, owner, platform, controls, bindings))
            NSLog(@"Zarvil: layout: %@", toCocoa(fault));
        bindings.push_back(presentAlerts(platform.alerts()));
        bindings.push_back(controller.guidance.observeAnnouncements(
            [](const std::string& words) { announce(toCocoa(words)); }));
        for (const auto& [outlet, text] : helpOfControls(platform.platform().strings))
            setAssistiveHelp([owner valueForKey:toCocoa(outlet)], toCocoa(text));
        bindings.push_back(controller.guidance.selectedTabProperty().observe(
            [owner](Tab, Transition) { joinKeyViews([owner mainView]); }));
        bindings.push_back(showScriptProgress(controller.scriptProgress, [owner mainView]));
    }

    CocoaPlatform platform;
    zarvil::Zarvil_Preferences controller;
    OperatedControls controls;
    Subscriptions bindings;
    HelpPanel help{controller.guidance, platform.platform().strings};
};

} // namespace zarvil::cocoa

@implementation Zarvil_Preferences

#define ZV_ACCESSORS(Class, name) @synthesize name;
ZV_OUTLETS(ZV_ACCESSORS)

- (void)dealloc {
    _loaded.reset();
#define ZV_RELEASE(Class, name) [name release];
    ZV_OUTLETS(ZV_RELEASE)
    [super dealloc];
}

// Life within the host.

- (NSView*)loadLayout {
    return [super loadMainView];
}

// A layout that is damaged may raise.
- (NSView*)loadMainView {
    NSView* view = nil;
    NSView** loaded = &view;
    Zarvil_Preferences* pane = self;
    if (NSException* raised = zarvil::cocoa::guarded([=] { *loaded = [pane loadLayout]; }))
        NSLog(@"Zarvil: the layout does not load: %@", [raised reason]);
    if (!view) {
        [self setMainView:zarvil::cocoa::newViewOfNoLayout()];
        [[self mainView] release];
        return [self mainView];
    }
    zarvil::cocoa::releaseTopLevelObjects([NSArray arrayWithObjects:uninstallModal, arrayController,
                                                                    savedArrayController,
                                                                    scriptsArrayController, nil]);
    return view;
}

- (void)mainViewDidLoad {
    if (_loaded || ![self mainView])
        return;
    _loaded = std::make_unique<zarvil::cocoa::LoadedPane>(self);
    _loaded->controller.mainViewDidLoad();
}

- (void)willSelect {
    if (_loaded)
        _loaded->controller.willSelect();
}

- (void)didSelect {
    if (_loaded)
        zarvil::cocoa::joinKeyViews([self mainView]);
}

- (NSPreferencePaneUnselectReply)shouldUnselect {
    return _loaded
               ? static_cast<NSPreferencePaneUnselectReply>(_loaded->controller.shouldUnselect())
               : NSUnselectNow;
}

- (void)willUnselect {
    zarvil::cocoa::leaveKeyViews([[[self mainView] window] contentView]);
    if (_loaded)
        _loaded->controller.willUnselect();
}

- (void)didUnselect {
    if (_loaded)
        _loaded->controller.didUnselect();
}

- (IBAction)showHelp:(id)sender {
    (void)sender;
    if (_loaded)
        _loaded->help.present();
}

- (BOOL)isUnlocked {
    return _loaded && _loaded->controller.isUnlocked();
}

- (void)setInterfaceEnabled:(BOOL)enabled {
    if (_loaded)
        _loaded->controller.setInterfaceEnabled(enabled);
}

// Actions. An outlet's goes through its model; another control's straight to the controller.

- (void)perform:(SEL)action sender:(id)sender {
    if (!_loaded)
        return;
    const auto found = _loaded->controls.find(sender);
    if (found == _loaded->controls.end()) {
        _loaded->controller.performAction(zarvil::cocoa::fromCocoa(NSStringFromSelector(action)),
                                          nullptr);
        return;
    }
    const auto operated = found->second;
    operated();
}

#define ZV_ACTION(name)                                                                            \
    -(IBAction)name : (id)sender {                                                                 \
        [self perform:_cmd sender:sender];                                                         \
    }
ZV_ACTIONS(ZV_ACTION)

@end
