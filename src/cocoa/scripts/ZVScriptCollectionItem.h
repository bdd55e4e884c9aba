#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace zarvil {
class ZVScriptCollectionItem;
namespace cocoa {
struct ScriptItemParts;
}
} // namespace zarvil

/// Shows one script and lets the user edit, run and delete it. Until it shows a model it does
/// nothing.
@interface ZVScriptCollectionItem : NSCollectionViewItem {
    std::unique_ptr<zarvil::cocoa::ScriptItemParts> _parts;
    id owner;
    NSTextField* text;
}
/// Shows a model, of which this item takes a share; null shows none.
- (void)showItem:(const std::shared_ptr<zarvil::ZVScriptCollectionItem>&)item;

- (IBAction)edit:(id)sender;
- (IBAction)execute:(id)sender;
- (IBAction)remove:(id)sender;
- (void)validateData;
- (void)removeFile;

@property BOOL editing;
/// A copy of the record's contents; setting it hands the model a record of its own.
@property(retain) NSMutableDictionary* data;
@property(assign) IBOutlet id owner;
@property(assign) IBOutlet NSTextField* text;
/// The edit fields; nil unless editing.
- (NSTextField*)eTitle;
- (NSTextField*)eText;
@end
