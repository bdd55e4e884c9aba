#pragma once

#import <AppKit/AppKit.h>

/// A tab view whose tabs the keyboard reaches: arrow keys choose another page.
@interface ZVTabView : NSTabView
@end
