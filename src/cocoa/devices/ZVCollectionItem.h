#pragma once

#import "cocoa/controls/ZVItemCollectionView.h"

#include <memory>

@class ZVCollectionNoteView;

namespace zarvil {
class ZVCollectionItem;
namespace cocoa {
struct DeviceItemParts;
}
} // namespace zarvil

/// Shows one device record with a check box: ticked means saved for watching. Until it shows a
/// model it does nothing.
@interface ZVCollectionItem : ZVRowItem {
    std::unique_ptr<zarvil::cocoa::DeviceItemParts> _parts;
    ZVCollectionNoteView* note;
    NSButton* check;
    NSTextField* nameLabel;
    NSTextField* detailLabel;
}
/// 0 not saved, 1 saved; the check box follows it.
@property NSUInteger state;
/// The card that the item stands on.
@property(retain) IBOutlet ZVCollectionNoteView* note;
@property(retain) IBOutlet NSButton* check;
@property(retain) IBOutlet NSTextField* nameLabel;
@property(retain) IBOutlet NSTextField* detailLabel;
/// The check box's action.
- (IBAction)toggleSelectDevice:(id)sender;
@end
