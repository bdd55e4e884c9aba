#pragma once

#import "cocoa/controls/ZVItemCollectionView.h"

/// The list of scripts on cards.
@interface ZVScriptCollectionView : ZVItemCollectionView
@end
