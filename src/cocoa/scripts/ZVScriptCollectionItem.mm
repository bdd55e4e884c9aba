#import "cocoa/scripts/ZVScriptCollectionItem.h"

#import "cocoa/binding/Bindings.h"
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

} // namespace

struct ScriptItemParts {
    std::shared_ptr<zarvil::ZVScriptCollectionItem> item;
    std::map<const ScriptEditField*, ShownField> fields;
    Subscription subviews;

    void show(const ScriptItemView::Subviews& wanted, NSView* card);
    [[nodiscard]] NSTextField* viewOf(const ScriptEditField* field) const {
        const auto shown = fields.find(field);
        return shown == fields.end() ? nil : shown->second.view.get();
    }
};

void ScriptItemParts::show(const ScriptItemView::Subviews& wanted, NSView* card) {
    std::erase_if(fields, [&](const auto& shown) {
        const bool gone = std::ranges::none_of(
            wanted, [&](const auto& field) { return field.get() == shown.first; });
        if (gone)
            [shown.second.view.get() removeFromSuperview];
        return gone;
    });
    for (const auto& field : wanted) {
        if (fields.contains(field.get()))
            continue;
        const auto view =
            Ref<NSTextField>::adopt([[NSTextField alloc] initWithFrame:toCocoa(field->frame())]);
        [view.get() setFont:[NSFont systemFontOfSize:field->fontSize()]];
        ShownField shown{view, {}};
        // The item's own action ends the edit, so that the field's is not needed.
        (void)bindField(*field, view.get(), shown.bindings);
        fields.emplace(field.get(), std::move(shown));
        [card addSubview:view.get()];
    }
}

} // namespace zarvil::cocoa

@implementation ZVScriptCollectionItem

@synthesize owner;
@synthesize text;

- (void)showItem:(const std::shared_ptr<zarvil::ZVScriptCollectionItem>&)item {
    _parts = std::make_unique<zarvil::cocoa::ScriptItemParts>();
    _parts->item = item;
    if (!item)
        return;
    ZVScriptCollectionItem* shown = self;
    _parts->subviews = item->view().subviewsProperty().observe(
        [shown](const zarvil::ScriptItemView::Subviews& fields, zarvil::Transition) {
            shown->_parts->show(fields, [shown view]);
        });
}

/// A share of the model, which may leave its list during one of its operations; may be null.
- (std::shared_ptr<zarvil::ZVScriptCollectionItem>)model {
    return _parts ? _parts->item : nullptr;
}

- (IBAction)edit:(id)sender {
    if (const auto model = [self model])
        model->edit();
}

- (IBAction)execute:(id)sender {
    if (const auto model = [self model])
        model->execute();
}

- (IBAction)remove:(id)sender {
    [[self retain] autorelease];
    if (const auto model = [self model])
        model->remove();
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
