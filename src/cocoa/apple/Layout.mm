#import "cocoa/pane/Layout.h"

namespace zarvil::cocoa {

/// NSPreferencePane holds them itself.
void releaseTopLevelObjects(NSArray* /*objects*/) {}

} // namespace zarvil::cocoa
