#import "cocoa/binding/Bindings.h"

#import "cocoa/adapters/CocoaModalLoop.h"
#import "cocoa/binding/Dimming.h"
#import "cocoa/binding/Fitting.h"
#import "cocoa/controls/KXButtonCell.h"
#import "cocoa/controls/ZVPlaceholderView.h"
#import "cocoa/controls/ZVRowViews.h"
#import "cocoa/controls/ZVSymbolView.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#include "interface/Banner.h"
#include "interface/Button.h"
#include "interface/Panel.h"
#include "interface/Placeholder.h"
#include "interface/ProgressIndicator.h"
#include "interface/Symbol.h"
#include "interface/TextField.h"

/// Keeps a panel from closing and tells that the user wished it.
@interface ZVPanelDelegate : NSObject {
@public
    ZVCall* cancelled;
}
@end

@implementation ZVPanelDelegate

- (void)dealloc {
    [cancelled release];
    [super dealloc];
}

- (BOOL)windowShouldClose:(id)sender {
    (void)sender;
    [cancelled run];
    return NO;
}

@end

namespace zarvil::cocoa {

namespace {

void bindEnabled(Control& model, NSControl* view, Subscriptions& kept) {
    const Ref<NSControl> shared(view);
    kept.push_back(model.enabledProperty().observe(
        [shared](bool enabled, Transition) { [shared.get() setEnabled:enabled]; }));
}

bool isOn(NSButton* view) { return [view state] == NSOnState; }

void showState(NSButton* view, int state) {
    if (state == buttonState::mixed)
        [view setAllowsMixedState:YES];
    [view setState:state];
}

/// A standard check box has turned by itself.
void toggled(Button& model, NSButton* view) {
    if (isOn(view) != (model.state() == buttonState::on))
        model.performClick();
    showState(view, model.state());
}

/// Whether the event under way is the return key; leaving a field sends its action too.
bool isReturnKey() {
    NSEvent* event = [NSApp currentEvent];
    if ([event type] != NSKeyDown || [[event characters] length] == 0)
        return false;
    const unichar key = [[event characters] characterAtIndex:0];
    return key == NSCarriageReturnCharacter || key == NSEnterCharacter || key == NSNewlineCharacter;
}

/// Has the call made whenever the notification is posted of the object.
Subscription observeNotification(NSString* name, id object, const std::function<void()>& call) {
    const auto observer = Ref<ZVCall>([ZVCall callWithFunction:call]);
    [[NSNotificationCenter defaultCenter] addObserver:observer.get()
                                             selector:@selector(run:)
                                                 name:name
                                               object:object];
    return Subscription(
        [=] { [[NSNotificationCenter defaultCenter] removeObserver:observer.get()]; });
}

void bindText(TextField& model, NSTextField* view, Subscriptions& kept) {
    const Ref<NSTextField> shared(view);
    kept.push_back(model.stringProperty().observe([shared](const std::string& text, Transition) {
        // An equal text is left alone, with the insertion point in it.
        if (fromCocoa([shared.get() stringValue]) != text)
            [shared.get() setStringValue:toCocoa(text)];
    }));
    kept.push_back(model.attributedStringProperty().observe(
        [shared](const AttributedString& text, Transition) {
            if (!text.empty())
                [shared.get() setAttributedStringValue:toCocoa(text)];
        }));
}

} // namespace

Subscription setDelegate(id object, id delegate) {
    [object setDelegate:delegate];
    const Ref<NSObject> shared(object);
    const Ref<NSObject> owned(delegate);
    return Subscription([=] {
        id delegating = shared.get();
        if ([delegating delegate] == owned.get())
            [delegating setDelegate:nil];
    });
}

void bindView(View& model, NSView* view, Subscriptions& kept) {
    const Ref<NSView> shared(view);
    kept.push_back(model.hiddenProperty().observe(
        [shared](bool hidden, Transition) { [shared.get() setHidden:hidden]; }));
    kept.push_back(model.alphaProperty().observe([shared](double alpha, Transition transition) {
        showOpacity(shared.get(), alpha, transition);
    }));
}

Operated bindButton(Button& model, NSButton* view, Subscriptions& kept) {
    bindView(model, view, kept);
    bindEnabled(model, view, kept);
    if (model.title().empty())
        model.setTitle(fromCocoa([view title]));
    const Ref<NSButton> shared(view);
    Button* button = &model;
    KXButtonCell* drawn = [[view cell] isKindOfClass:[KXButtonCell class]] ? [view cell] : nil;
    if (drawn) {
        [drawn showButton:button];
        const Ref<KXButtonCell> cell(drawn);
        kept.push_back(Subscription([cell] { [cell.get() showButton:nullptr]; }));
    }
    kept.push_back(model.titleProperty().observe([shared](const std::string& title, Transition) {
        [shared.get() setTitle:toCocoa(title)];
    }));
    kept.push_back(model.attributedTitleProperty().observe(
        [shared](const AttributedString& title, Transition) {
            if (!title.empty())
                [shared.get() setAttributedTitle:toCocoa(title)];
        }));
    kept.push_back(model.stateProperty().observe([shared](int state, Transition) {
        showState(shared.get(), state);
        [shared.get() setNeedsDisplay:YES];
    }));
    if (model.kind() == ButtonKind::Momentary)
        return [button] { button->performClick(); };
    if (!drawn)
        return [=] { toggled(*button, shared.get()); };
    // The cell has advanced the model's state already.
    return [=] {
        if (![static_cast<KXButtonCell*>([shared.get() cell]) pressLeftStateAlone])
            button->sendAction();
    };
}

void bindLabel(TextField& model, NSTextField* view, Subscriptions& kept) {
    bindView(model, view, kept);
    if (model.stringValue().empty())
        model.setStringValue(fromCocoa([view stringValue]));
    bindText(model, view, kept);
    const Ref<NSTextField> shared(view);
    const Ref<NSFont> designed([view font]);
    kept.push_back(model.stringProperty().observe([=](const std::string& text, Transition) {
        fitText(shared.get(), toCocoa(text), designed.get());
    }));
}

Operated bindField(TextField& model, NSTextField* view, Subscriptions& kept) {
    bindView(model, view, kept);
    bindEnabled(model, view, kept);
    bindText(model, view, kept);
    const Ref<NSTextField> shared(view);
    TextField* field = &model;
    kept.push_back(model.faultProperty().observe([shared](const std::string& fault, Transition) {
        [shared.get() setToolTip:fault.empty() ? nil : toCocoa(fault)];
    }));
    const auto takeOver = [=] {
        const std::string text = fromCocoa([shared.get() stringValue]);
        if (text != field->stringValue())
            field->userDidEdit(text);
    };
    kept.push_back(observeNotification(NSControlTextDidChangeNotification, view, takeOver));
    if (![[view cell] sendsActionOnEndEditing])
        return [=] {
            takeOver();
            field->sendAction();
        };
    return [=] {
        takeOver();
        if (isReturnKey())
            field->userDidPressReturn();
        else
            field->userDidLeave();
    };
}

void bindFault(TextField& model, NSTextField* label, Subscriptions& kept) {
    const Ref<NSTextField> shared(label);
    kept.push_back(model.faultProperty().observe([shared](const std::string& fault, Transition) {
        [shared.get() setStringValue:toCocoa(fault)];
        [shared.get() setHidden:fault.empty()];
    }));
}

void bindPlaceholder(Placeholder& model, ZVPlaceholderView* view, Subscriptions& kept) {
    bindView(model, view, kept);
    const Ref<ZVPlaceholderView> shared(view);
    kept.push_back(model.textProperty().observe(
        [shared](const Placeholder::Text& text, Transition) { [shared.get() showText:text]; }));
}

void bindIndicator(ProgressIndicator& model, NSProgressIndicator* view, Subscriptions& kept) {
    bindView(model, view, kept);
    const Ref<NSProgressIndicator> shared(view);
    const ProgressIndicator* indicator = &model;
    // An idle one is not shown; GNUstep does not hide it by itself.
    const auto hide = [=] {
        [shared.get() setHidden:indicator->isHidden() || !indicator->animatingProperty().get()];
    };
    kept.push_back(model.animatingProperty().observe([=](bool animating, Transition) {
        if (animating)
            [shared.get() startAnimation:nil];
        else
            [shared.get() stopAnimation:nil];
        hide();
    }));
    kept.push_back(model.hiddenProperty().observe([=](bool, Transition) { hide(); }));
}

void bindSymbol(SymbolView& model, ZVSymbolView* view, Subscriptions& kept) {
    bindView(model, view, kept);
    const Ref<ZVSymbolView> shared(view);
    kept.push_back(model.symbolProperty().observe(
        [shared](Symbol symbol, Transition) { [shared.get() showSymbol:symbol]; }));
}

void bindBanner(Banner& model, ZVBannerView* view, Subscriptions& kept) {
    bindView(model, view, kept);
    const Ref<ZVBannerView> shared(view);
    kept.push_back(model.prominentProperty().observe(
        [shared](bool prominent, Transition) { [shared.get() setProminent:prominent]; }));
}

void bindPanel(Panel& model, NSWindow* window, CocoaModalLoop& modal,
               const std::function<void()>& cancelled, Subscriptions& kept) {
    const Ref<NSWindow> shared(window);
    const auto delegate = Ref<ZVPanelDelegate>::adopt([[ZVPanelDelegate alloc] init]);
    delegate.get()->cancelled = [[ZVCall callWithFunction:cancelled] retain];
    kept.push_back(setDelegate(window, delegate.get()));
    [window setReleasedWhenClosed:NO];
    modal.setWindow(model, window);
    Panel* panel = &model;
    // In the middle of the screen: the sheet has no window that it could belong to.
    kept.push_back(model.onScreenProperty().observe([=](bool onScreen, Transition) {
        NSWindow* shown = shared.get();
        [shown setOpaque:panel->isOpaque()];
        if (const auto color = panel->backgroundColor())
            [shown setBackgroundColor:toCocoa(*color)];
        if (onScreen) {
            [shown center];
            [shown makeKeyAndOrderFront:nil];
        } else {
            [shown orderOut:nil];
        }
    }));
}

} // namespace zarvil::cocoa
