#pragma once

#import "cocoa/controls/ZVItemCollectionView.h"

/// A list of devices on cards.
@interface ZVDeviceCollectionView : ZVItemCollectionView
@end
