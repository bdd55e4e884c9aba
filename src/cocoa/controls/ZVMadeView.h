#pragma once

#import <AppKit/AppKit.h>

/// A view that is set up the same whether code or a layout makes it.
@interface ZVMadeView : NSView
/// Called once, by either initializer. For classes below.
- (void)setup;
@end
