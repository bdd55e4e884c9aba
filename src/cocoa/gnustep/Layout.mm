#import "cocoa/pane/Layout.h"

namespace zarvil::cocoa {

void releaseTopLevelObjects(NSArray* objects) {
    for (NSUInteger index = 0; index < [objects count]; ++index)
        [[objects objectAtIndex:index] release];
}

} // namespace zarvil::cocoa
