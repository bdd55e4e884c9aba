#import "cocoa/devices/ZVCollectionItem.h"

#import "cocoa/controls/ZVCollectionNoteView.h"
#import "cocoa/support/Convert.h"

#include "devices/ZVCollectionItem.h"

using zarvil::cocoa::toCocoa;

namespace zarvil::cocoa {

struct DeviceItemParts {
    std::shared_ptr<zarvil::ZVCollectionItem> item;
};

} // namespace zarvil::cocoa

@implementation ZVCollectionItem

@synthesize note;
@synthesize check;
@synthesize nameLabel;
@synthesize detailLabel;

- (void)dealloc {
    [note release];
    [check release];
    [nameLabel release];
    [detailLabel release];
    [super dealloc];
}

/// A share of the model, which may leave its list during one of its operations; may be null.
- (std::shared_ptr<zarvil::ZVCollectionItem>)model {
    return _parts ? _parts->item : nullptr;
}

- (void)showRow:(const std::shared_ptr<zarvil::CollectionViewItem>&)row {
    _parts = std::make_unique<zarvil::cocoa::DeviceItemParts>();
    _parts->item = std::dynamic_pointer_cast<zarvil::ZVCollectionItem>(row);
    [self rowDidChange];
}

- (void)rowDidChange {
    const auto model = [self model];
    if (!model)
        return;
    [self willChangeValueForKey:@"state"];
    [check setState:model->state() != 0 ? NSOnState : NSOffState];
    [self didChangeValueForKey:@"state"];
    [nameLabel setStringValue:toCocoa(model->name())];
    [detailLabel setStringValue:toCocoa(model->detail())];
    [[self view] setToolTip:toCocoa(model->toolTip())];
}

- (NSUInteger)state {
    const auto model = [self model];
    return model ? model->state() : 0;
}

- (void)setState:(NSUInteger)state {
    if (const auto model = [self model])
        model->setState(state);
}

- (IBAction)toggleSelectDevice:(id)sender {
    // The item may leave its list, and this object its view, during the call.
    [[self retain] autorelease];
    if (const auto model = [self model])
        model->userDidSetState([sender state] == NSOnState ? 1 : 0);
}

@end
