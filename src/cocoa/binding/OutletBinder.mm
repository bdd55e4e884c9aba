#import "cocoa/binding/OutletBinder.h"

#import "cocoa/adapters/CocoaPlatform.h"
#import "cocoa/controls/ZVItemCollectionView.h"
#import "cocoa/controls/ZVPlaceholderView.h"
#import "cocoa/controls/ZVRowViews.h"
#import "cocoa/controls/ZVSymbolView.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"
#import "cocoa/support/Ref.h"

#include "pane/Zarvil_Preferences.h"

/// Makes a call when the user has chosen a page.
@interface ZVTabObserver : NSObject {
@public
    ZVCall* chosen;
}
@end

@implementation ZVTabObserver

- (void)dealloc {
    [chosen release];
    [super dealloc];
}

- (void)tabView:(NSTabView*)tabs didSelectTabViewItem:(NSTabViewItem*)page {
    (void)tabs;
    (void)page;
    [chosen run];
}

@end

namespace zarvil::cocoa {

namespace {

/// Called by `visitOutlets` with each outlet as what it is.
class Binder {
public:
    Binder(Zarvil_Preferences& pane, NSObject* owner, CocoaPlatform& platform,
           OperatedControls& controls, Subscriptions& kept, Faults& faults)
        : pane_(pane),
          owner_(owner),
          platform_(platform),
          controls_(controls),
          kept_(kept),
          faults_(faults) {}

    void operator()(std::string_view name, Button& model) {
        if (NSButton* view = findAs<NSButton>(name)) {
            adoptAction(model, view);
            const auto operated = bindButton(model, view, kept_);
            if ([view action])
                controls_[view] = operated;
            else
                callDirectly(view, operated);
        }
    }

    void operator()(std::string_view name, TextField& model) {
        NSTextField* view = findAs<NSTextField>(name);
        if (!view)
            return;
        adoptAction(model, view);
        if (![view isEditable]) {
            bindLabel(model, view, kept_);
            return;
        }
        controls_[view] = bindField(model, view, kept_);
        const std::string fault = std::string(name) + "Fault";
        if ([owner_ respondsToSelector:NSSelectorFromString(toCocoa(fault))])
            if (NSTextField* label = findAs<NSTextField>(fault))
                bindFault(model, label, kept_);
    }

    void operator()(std::string_view name, ProgressIndicator& model) {
        if (NSProgressIndicator* view = findAs<NSProgressIndicator>(name))
            bindIndicator(model, view, kept_);
    }

    void operator()(std::string_view name, AuthorizationView& model) {
        NSView* view = findAs<NSView>(name);
        if (!view)
            return;
        bindView(model, view, kept_);
        if (!platform_.authorization().setLock(model, view))
            mismatch(name);
        CocoaPlatform* platform = &platform_;
        AuthorizationView* lock = &model;
        kept_.push_back(Subscription([=] { (void)platform->authorization().setLock(*lock, nil); }));
    }

    void operator()(std::string_view name, Panel& model) {
        Zarvil_Preferences* pane = &pane_;
        if (NSWindow* window = findAs<NSWindow>(name))
            bindPanel(
                model, window, platform_.modal(),
                [pane] { pane->performAction("uninstallSheetFinished:", nullptr); }, kept_);
    }

    void operator()(std::string_view name, CollectionView& model) {
        NSCollectionView* view = findAs<NSCollectionView>(name);
        if (!view)
            return;
        bindView(model, view, kept_);
        if (![view isKindOfClass:[ZVItemCollectionView class]]) {
            mismatch(name);
            return;
        }
        const Ref<ZVItemCollectionView> shared(static_cast<ZVItemCollectionView*>(view));
        showRows(shared.get(), &model);
        kept_.push_back(Subscription([shared] { showRows(shared.get(), nullptr); }));
    }

    void operator()(std::string_view name, SymbolView& model) {
        if (ZVSymbolView* view = findAs<ZVSymbolView>(name))
            bindSymbol(model, view, kept_);
    }

    void operator()(std::string_view name, Banner& model) {
        if (ZVBannerView* view = findAs<ZVBannerView>(name))
            bindBanner(model, view, kept_);
    }

    void operator()(std::string_view name, Placeholder& model) {
        if (ZVPlaceholderView* view = findAs<ZVPlaceholderView>(name))
            bindPlaceholder(model, view, kept_);
    }

    void operator()(std::string_view name, View& model) {
        if (NSView* view = findAs<NSView>(name))
            bindView(model, view, kept_);
    }

    /// The pages stand in the order of `Tab`.
    void bindTabs() {
        NSTabView* tabs = findAs<NSTabView>("tabView");
        if (!tabs)
            return;
        Guidance* guidance = &pane_.guidance;
        const auto observer = Ref<ZVTabObserver>::adopt([[ZVTabObserver alloc] init]);
        const auto choose = [=] {
            const NSInteger index = [tabs indexOfTabViewItem:[tabs selectedTabViewItem]];
            guidance->selectTab(static_cast<Tab>(index));
        };
        observer.get()->chosen = [[ZVCall callWithFunction:choose] retain];
        kept_.push_back(setDelegate(tabs, observer.get()));
        const Ref<NSTabView> shared(tabs);
        kept_.push_back(pane_.guidance.selectedTabProperty().observe([=](Tab tab, Transition) {
            const auto index = static_cast<NSInteger>(tab);
            if (index < [shared.get() numberOfTabViewItems])
                [shared.get() selectTabViewItemAtIndex:index];
        }));
    }

private:
    /// For a control whose action is none of the pane's.
    void callDirectly(NSButton* view, const Operated& operated) {
        const auto call = Ref<ZVCall>([ZVCall callWithFunction:operated]);
        [view setTarget:call.get()];
        [view setAction:@selector(run:)];
        const Ref<NSButton> shared(view);
        kept_.push_back(Subscription([=] {
            if ([shared.get() target] == call.get())
                [shared.get() setTarget:nil];
        }));
    }

    template <typename Class>
    Class* findAs(std::string_view name) {
        // An owner without such a key raises.
        id found = nil;
        id* result = &found;
        NSString* key = toCocoa(name);
        NSObject* owner = owner_;
        (void)guarded([=] { *result = [owner valueForKey:key]; });
        if (!found)
            faults_.push_back("nothing for the outlet " + std::string(name));
        else if (![found isKindOfClass:[Class class]])
            mismatch(name);
        else
            return found;
        return nil;
    }

    void mismatch(std::string_view name) {
        faults_.push_back("what stands for " + std::string(name) + " is of the wrong kind");
    }

    static void adoptAction(Control& model, NSControl* view) {
        if (SEL action = [view action])
            model.setAction(fromCocoa(NSStringFromSelector(action)));
    }

    Zarvil_Preferences& pane_;
    NSObject* owner_;
    CocoaPlatform& platform_;
    OperatedControls& controls_;
    Subscriptions& kept_;
    Faults& faults_;
};

} // namespace

Faults bindOutlets(Zarvil_Preferences& pane, NSObject* owner, CocoaPlatform& platform,
                   OperatedControls& controls, Subscriptions& kept) {
    Faults faults;
    Binder binder(pane, owner, platform, controls, kept, faults);
    visitOutlets(pane, binder);
    visitGuidance(pane.guidance, binder);
    binder.bindTabs();
    return faults;
}

} // namespace zarvil::cocoa
