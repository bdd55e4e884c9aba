#import "cocoa/controls/Hyperlink.h"

#import "cocoa/support/Convert.h"

#include "controls/Hyperlink.h"

@implementation NSAttributedString (Hyperlink)

+ (id)hyperlinkFromString:(NSString*)string withURL:(NSURL*)url {
    using namespace zarvil::cocoa;
    return toCocoa(zarvil::hyperlinkFromString(fromCocoa(string), fromCocoa([url absoluteString])));
}

@end
