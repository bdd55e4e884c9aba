#pragma once

#import <AppKit/AppKit.h>

/// A row that has a ground of its own while it is prominent.
@interface ZVBannerView : NSView {
    BOOL _prominent;
}
- (void)setProminent:(BOOL)prominent;
@end

/// A check box that only shows a state: it takes neither clicks nor keys, but stays legible.
@interface ZVStateButton : NSButton
@end

/// A label in the bold system font, which GNUstep's reader of layouts does not know.
@interface ZVHeadingField : NSTextField
@end
