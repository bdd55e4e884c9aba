#pragma once

#import <AppKit/AppKit.h>

@interface NSAttributedString (Hyperlink)
/// Blue, single-underlined, centred text. The address is not used, on purpose: opening a target is
/// the affair of the button that shows the text.
+ (id)hyperlinkFromString:(NSString*)string withURL:(NSURL*)url;
@end
