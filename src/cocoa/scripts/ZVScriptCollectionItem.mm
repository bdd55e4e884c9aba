#import "cocoa/scripts/ZVScriptCollectionItem.h"

#import "cocoa/binding/Bindings.h"
#import "cocoa/binding/Fitting.h"
#import "cocoa/controls/ZVSymbolView.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/PropertyLists.h"
#import "cocoa/support/Ref.h"

#include "scripts/ZVScriptCollectionItem.h"

#include <algorithm>
#include <map>

namespace zarvil::cocoa {

namespace {

/// An edit field of the card while it is shown.
struct ShownField {
    Ref<NSTextField> view;
    Subscriptions bindings;
};

constexpr CGFloat sideMargin = 12; // at the right of the edit fields

} // namespace

struct ScriptItemParts {
    std::shared_ptr<zarvil::ZVScriptCollectionItem> item;
    std::map<const ScriptEditField*, ShownField> fields;
    Subscriptions changes;

    void show(const ScriptItemView::Subviews& wanted, NSView* card, id delegate);
    void add(ScriptEditField& field, NSView* card, id delegate);
    [[nodiscard]] NSTextField* viewOf(const ScriptEditField* field) const {
        const auto shown = fields.find(field);
        return shown == fields.end() ? nil : shown->second.view.get();
    }
};

void ScriptItemParts::show(const ScriptItemView::Subviews& wanted, NSView* card, id delegate) {
    std::erase_if(fields, [&](const auto& shown) {
        const bool gone = std::ranges::none_of(
            wanted, [&](const auto& field) { return field.get() == shown.first; });
        if (gone)
            [shown.second.view.get() removeFromSuperview];
        return gone;
    });
    for (const auto& field : wanted) {
        if (!fields.contains(field.get()))
            add(*field, card, delegate);
    }
}

void ScriptItemParts::add(ScriptEditField& field, NSView* card, id delegate) {
    // A frame keeps its place from the lower left; on a narrow card its right edge gives way.
    NSRect frame = toCocoa(field.frame());
    frame.size.width =
        std::min(frame.size.width, [card bounds].size.width - sideMargin - frame.origin.x);
    const auto view = Ref<NSTextField>::adopt([[NSTextField alloc] initWithFrame:frame]);
    [view.get() setAutoresizingMask:NSViewWidthSizable | NSViewMaxYMargin];
    ShownField shown{view, {}};
    if (field.isTooLarge()) {
        [view.get() setEditable:NO];
        [view.get() setStringValue:toCocoa(item->tooLargeText())];
    } else {
        [view.get() setFont:[NSFont systemFontOfSize:field.fontSize()]];
        // The item's own action ends the edit, so that the field's is not needed.
        (void)bindField(field, view.get(), shown.bindings);
        [view.get() setDelegate:delegate];
    }
    fields.emplace(&field, std::move(shown));
    [card addSubview:view.get()];
}

namespace {

void showCaption(NSButton* button, const ButtonCaption& caption) {
    [button setTitle:toCocoa(caption.title)];
    fitText(button, [button title], [NSFont systemFontOfSize:[NSFont systemFontSize]]);
    [button setToolTip:toCocoa(caption.toolTip)];
}

} // namespace

} // namespace zarvil::cocoa

using zarvil::cocoa::toCocoa;

@interface ZVScriptCollectionItem ()
- (std::shared_ptr<zarvil::ZVScriptCollectionItem>)model;
- (void)showState;
@end

@implementation ZVScriptCollectionItem

@synthesize owner;
@synthesize text;
@synthesize titleLabel;
@synthesize textLabel;
@synthesize stateLabel;
@synthesize hintLabel;
@synthesize stateSymbol;
@synthesize runButton;
@synthesize editButton;
@synthesize removeButton;

- (void)dealloc {
    [titleLabel release];
    [textLabel release];
    [stateLabel release];
    [hintLabel release];
    [stateSymbol release];
    [runButton release];
    [editButton release];
    [removeButton release];
    [super dealloc];
}

- (void)showRow:(const std::shared_ptr<zarvil::CollectionViewItem>&)row {
    if (_parts)
        _parts->show({}, [self view], self);
    _parts = std::make_unique<zarvil::cocoa::ScriptItemParts>();
    const auto item = std::dynamic_pointer_cast<zarvil::ZVScriptCollectionItem>(row);
    _parts->item = item;
    if (!item)
        return;
    ZVScriptCollectionItem* card = self;
    auto& changes = _parts->changes;
    if (const zarvil::Record& record = item->representedObject())
        changes.push_back(record->observeEdits([card] { [card rowDidChange]; }));
    changes.push_back(item->view().subviewsProperty().observe(
        [card](const zarvil::ScriptItemView::Subviews& fields, zarvil::Transition) {
            card->_parts->show(fields, [card view], card);
            [card rowDidChange];
        }));
    changes.push_back(
        item->runningProperty().observe([card](bool, zarvil::Transition) { [card showState]; }));
    changes.push_back(item->outcomeProperty().observe(
        [card](const zarvil::ScriptOutcome&, zarvil::Transition) { [card showState]; }));
    changes.push_back(item->noteProperty().observe(
        [card](const zarvil::ScriptNote&, zarvil::Transition) { [card showState]; }));
}

- (void)rowDidChange {
    const auto model = [self model];
    if (!model)
        return;
    std::string lines;
    for (const std::string& line : model->shownLines())
        lines += (lines.empty() ? "" : "\n") + line;
    const BOOL isEditing = !model->view().subviews().empty();
    [titleLabel setStringValue:toCocoa(model->shownTitle())];
    [titleLabel setHidden:isEditing];
    [textLabel setStringValue:toCocoa(lines.empty() ? model->emptyText() : lines)];
    [textLabel setHidden:isEditing];
    [hintLabel setStringValue:toCocoa(model->editingHint())];
    zarvil::cocoa::showCaption(removeButton, model->removeCaption());
    [self showState];
}

- (void)showState {
    const auto model = [self model];
    if (!model)
        return;
    const zarvil::ScriptState state = model->shownState();
    [stateLabel setStringValue:toCocoa(state.line)];
    [stateLabel setToolTip:toCocoa(state.reason.empty() ? state.line : state.reason)];
    [stateLabel setHidden:state.line.empty()];
    [stateSymbol showSymbol:state.symbol];
    [stateSymbol setHidden:state.line.empty()];
    [hintLabel setHidden:!state.line.empty() || model->view().subviews().empty()];
    zarvil::cocoa::showCaption(runButton, model->runCaption());
    zarvil::cocoa::showCaption(editButton, model->editCaption());
    [runButton setEnabled:!model->runningProperty().get()];
}

/// Return makes a line of the script's text instead of ending the edit.
- (BOOL)control:(NSControl*)control
               textView:(NSTextView*)textView
    doCommandBySelector:(SEL)command {
    if (control != [self eText] || command != @selector(insertNewline:))
        return NO;
    [textView insertNewlineIgnoringFieldEditor:self];
    return YES;
}

/// A share of the model, which may leave its list during one of its operations; may be null.
- (std::shared_ptr<zarvil::ZVScriptCollectionItem>)model {
    return _parts ? _parts->item : nullptr;
}

- (IBAction)edit:(id)sender {
    if (const auto model = [self model])
        model->userDidPressEdit();
}

- (IBAction)execute:(id)sender {
    if (const auto model = [self model])
        model->userDidPressRun();
}

- (IBAction)remove:(id)sender {
    [[self retain] autorelease];
    if (const auto model = [self model])
        model->userDidPressRemove();
}

- (void)validateData {
    if (const auto model = [self model])
        model->validateData();
}

- (void)removeFile {
    if (const auto model = [self model])
        model->removeFile();
}

- (BOOL)editing {
    const auto model = [self model];
    return model && model->editing();
}

- (void)setEditing:(BOOL)editing {
    if (const auto model = [self model])
        model->setEditing(editing);
}

- (NSMutableDictionary*)data {
    const auto model = [self model];
    if (!model || !model->data())
        return nil;
    return [NSMutableDictionary
        dictionaryWithDictionary:zarvil::cocoa::toPropertyList(model->data()->contents())];
}

- (void)setData:(NSMutableDictionary*)data {
    if (const auto model = [self model])
        model->setData(zarvil::makeRecord(zarvil::cocoa::toDictionary(data)));
}

- (NSTextField*)eTitle {
    const auto model = [self model];
    return model ? _parts->viewOf(model->eTitle()) : nil;
}

- (NSTextField*)eText {
    const auto model = [self model];
    return model ? _parts->viewOf(model->eText()) : nil;
}

@end
