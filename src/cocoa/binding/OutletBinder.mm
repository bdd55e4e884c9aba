#import "cocoa/binding/OutletBinder.h"

#import "cocoa/adapters/CocoaPlatform.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"

#include "pane/Zarvil_Preferences.h"

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
            controls_[view] = bindButton(model, view, kept_);
        }
    }

    void operator()(std::string_view name, TextField& model) {
        NSTextField* view = findAs<NSTextField>(name);
        if (!view)
            return;
        adoptAction(model, view);
        if ([view isEditable])
            controls_[view] = bindField(model, view, kept_);
        else
            bindLabel(model, view, kept_);
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

    void operator()(std::string_view name, View& model) {
        if (NSView* view = findAs<NSView>(name))
            bindView(model, view, kept_);
    }

private:
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
    visitOutlets(pane, Binder(pane, owner, platform, controls, kept, faults));
    return faults;
}

} // namespace zarvil::cocoa
