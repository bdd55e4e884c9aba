#import "cocoa/devices/ZVDeviceCollectionView.h"

#import "cocoa/devices/ZVCollectionItem.h"

@implementation ZVDeviceCollectionView

- (CGFloat)rowHeight {
    return 62;
}

- (ZVRowItem*)newRowItem {
    return [[ZVCollectionItem alloc] initWithNibName:@"DeviceItem"
                                              bundle:[NSBundle bundleForClass:[self class]]];
}

@end
