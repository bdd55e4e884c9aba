#import "cocoa/scripts/ZVScriptCollectionView.h"

#import "cocoa/scripts/ZVScriptCollectionItem.h"

#include "scripts/ZVScriptCollectionItem.h"

@implementation ZVScriptCollectionView

- (CGFloat)rowHeight {
    return zarvil::ScriptItemView::minimumSize.height;
}

- (ZVRowItem*)newRowItem {
    return [[ZVScriptCollectionItem alloc] initWithNibName:@"ScriptItem"
                                                    bundle:[NSBundle bundleForClass:[self class]]];
}

@end
