#import "cocoa/binding/Layout.h"

namespace zarvil::cocoa {

/// NSPreferencePane holds them itself.
void releaseTopLevelObjects(NSArray* /*objects*/) {}

/// System Preferences joins the pane's first and last one, and the layout's own links do the rest.
void joinKeyViews(NSView* /*layout*/) {}
void leaveKeyViews(NSView* /*part*/) {}

} // namespace zarvil::cocoa
