#pragma once

#import <AppKit/AppKit.h>

/// The cell of a message panel's button: dark, bevelled, with a white centred title.
@interface ZVMessageViewButton : NSButtonCell
@end
