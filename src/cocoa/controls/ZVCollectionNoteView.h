#pragma once

#import <AppKit/AppKit.h>

/// A yellow note card with a soft shadow, behind what stands on it.
@interface ZVCollectionNoteView : NSView
@end
