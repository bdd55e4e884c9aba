#pragma once

#import "cocoa/binding/Bindings.h"

#include <map>
#include <string>
#include <vector>

namespace zarvil {
class Zarvil_Preferences;
}

namespace zarvil::cocoa {

class CocoaPlatform;

/// What a layout and a controller do not agree on, a sentence each; empty when all is well.
using Faults = std::vector<std::string>;

/// What to do when a control sends its action, by the control.
using OperatedControls = std::map<const void*, Operated>;

/// Connects every outlet of the pane with the object of its name that the layout gave `owner`, by
/// key-value coding. An outlet's action is that of its control. The subscriptions end the
/// bindings; they must go before the pane does.
Faults bindOutlets(Zarvil_Preferences& pane, NSObject* owner, CocoaPlatform& platform,
                   OperatedControls& controls, Subscriptions& kept);

} // namespace zarvil::cocoa
