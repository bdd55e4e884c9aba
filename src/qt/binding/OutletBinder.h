#pragma once

#include "qt/binding/Bindings.h"

#include <string>
#include <vector>

class QWidget;

namespace zarvil {
class Zarvil_Preferences;
}

namespace zarvil::qt {

/// What a layout and a controller do not agree on, a sentence each; empty when all is well.
using Faults = std::vector<std::string>;

/// Connects the outlets of the pane, and what it says beside them, with the widgets of their names
/// in a part of the layout, and every widget that names an action with that action. A widget whose
/// name starts with a lower-case letter claims to be an outlet. The subscriptions end the bindings;
/// they must go before the pane does.
Faults bindOutlets(Zarvil_Preferences& pane, QWidget& part, Subscriptions& kept);

/// Connects the tabs, and what is said aloud, with the layout as a whole.
void bindGuidance(Zarvil_Preferences& pane, QWidget& layout, Subscriptions& kept);

/// The outlets that no widget has the name of once every part is there.
Faults missingOutlets(Zarvil_Preferences& pane, const QWidget& layout);

} // namespace zarvil::qt
