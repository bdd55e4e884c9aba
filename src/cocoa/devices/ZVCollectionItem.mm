#import "cocoa/devices/ZVCollectionItem.h"

#import "cocoa/controls/ZVCollectionNoteView.h"

#include "devices/ZVCollectionItem.h"

namespace zarvil::cocoa {

struct DeviceItemParts {
    std::shared_ptr<zarvil::ZVCollectionItem> item = std::make_shared<zarvil::ZVCollectionItem>();
    Subscription state;
};

} // namespace zarvil::cocoa

@implementation ZVCollectionItem

@synthesize note;

- (zarvil::ZVCollectionItem&)item {
    if (!_parts)
        _parts = std::make_unique<zarvil::cocoa::DeviceItemParts>();
    return *_parts->item;
}

- (void)dealloc {
    [note release];
    [super dealloc];
}

- (void)showItem:(const std::shared_ptr<zarvil::ZVCollectionItem>&)item {
    (void)[self item];
    _parts->item = item;
    // What is bound to the state hears of each change.
    ZVCollectionItem* shown = self;
    _parts->state = item->stateProperty().observe([shown](unsigned long, zarvil::Transition) {
        [shown willChangeValueForKey:@"state"];
        [shown didChangeValueForKey:@"state"];
    });
}

- (NSUInteger)state {
    return [self item].state();
}

- (void)setState:(NSUInteger)state {
    [self item].setState(state);
}

- (IBAction)toggleSelectDevice:(id)sender {
    (void)[self item];
    // The item may leave its list, and this object its view, during the call.
    const auto item = _parts->item;
    [[self retain] autorelease];
    item->userDidSetState([sender state] == NSOnState ? 1 : 0);
}

@end
