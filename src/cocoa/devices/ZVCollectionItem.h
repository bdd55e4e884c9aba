#pragma once

#import <AppKit/AppKit.h>

#include <memory>

@class ZVCollectionNoteView;

namespace zarvil {
class ZVCollectionItem;
namespace cocoa {
struct DeviceItemParts;
}
} // namespace zarvil

/// Shows one device record with a check box: ticked means saved for watching.
@interface ZVCollectionItem : NSCollectionViewItem {
    std::unique_ptr<zarvil::cocoa::DeviceItemParts> _parts;
    ZVCollectionNoteView* note;
}
/// Shows a model, of which this item takes a share.
- (void)showItem:(const std::shared_ptr<zarvil::ZVCollectionItem>&)item;
/// 0 not saved, 1 saved; the check box is bound to it.
@property NSUInteger state;
/// The card that the item stands on.
@property(retain) IBOutlet ZVCollectionNoteView* note;
/// The check box's action.
- (IBAction)toggleSelectDevice:(id)sender;
@end
