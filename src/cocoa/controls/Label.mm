#import "cocoa/controls/Label.h"

namespace zarvil::cocoa {

NSTextField* makeLabel() {
    NSTextField* label = [[[NSTextField alloc] initWithFrame:NSZeroRect] autorelease];
    [label setEditable:NO];
    [label setSelectable:NO];
    [label setBezeled:NO];
    [label setDrawsBackground:NO];
    [[label cell] setWraps:YES];
    return label;
}

} // namespace zarvil::cocoa
