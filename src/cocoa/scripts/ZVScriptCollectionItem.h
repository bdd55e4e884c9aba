#pragma once

#import "cocoa/controls/ZVItemCollectionView.h"

#include <memory>

@class ZVSymbolView;

namespace zarvil {
class ZVScriptCollectionItem;
namespace cocoa {
struct ScriptItemParts;
}
} // namespace zarvil

/// Shows one script and lets the user edit, run and delete it. Until it shows a model it does
/// nothing.
@interface ZVScriptCollectionItem : ZVRowItem {
    std::unique_ptr<zarvil::cocoa::ScriptItemParts> _parts;
    id owner;
    NSTextField* text;
    NSTextField* titleLabel;
    NSTextField* textLabel;
    NSTextField* stateLabel;
    NSTextField* hintLabel;
    ZVSymbolView* stateSymbol;
    NSButton* runButton;
    NSButton* editButton;
    NSButton* removeButton;
}
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
@property(retain) IBOutlet NSTextField* titleLabel;
@property(retain) IBOutlet NSTextField* textLabel;
@property(retain) IBOutlet NSTextField* stateLabel;
@property(retain) IBOutlet NSTextField* hintLabel;
@property(retain) IBOutlet ZVSymbolView* stateSymbol;
@property(retain) IBOutlet NSButton* runButton;
@property(retain) IBOutlet NSButton* editButton;
@property(retain) IBOutlet NSButton* removeButton;
/// The edit fields; nil unless editing.
- (NSTextField*)eTitle;
- (NSTextField*)eText;
@end
