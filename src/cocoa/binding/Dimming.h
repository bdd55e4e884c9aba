#pragma once

#import <AppKit/AppKit.h>

#include "interface/Property.h"

namespace zarvil::cocoa {

/// Shows a view and what is in it at an opacity from 0 to 1. An animated change glides where the
/// system can.
void showOpacity(NSView* view, double opacity, Transition transition);

} // namespace zarvil::cocoa
