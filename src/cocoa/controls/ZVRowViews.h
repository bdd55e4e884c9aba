#pragma once

#import <AppKit/AppKit.h>

/// A row that has a ground of its own while it is prominent.
@interface ZVBannerView : NSView {
    BOOL _prominent;
}
- (void)setProminent:(BOOL)prominent;
@end

/// Links side by side, each as wide as its words: from the left, or from the right if its layout
/// keeps it there. In smaller letters where they are too long.
@interface ZVLinkRowView : NSView {
    BOOL _arranging;
}
/// For its links, when their words change.
- (void)arrange;
@end

/// A check box that only shows a state: it takes neither clicks nor keys, but stays legible.
@interface ZVStateButton : NSButton
@end

/// A label in the bold system font, which GNUstep's reader of layouts does not know.
@interface ZVHeadingField : NSTextField
@end
