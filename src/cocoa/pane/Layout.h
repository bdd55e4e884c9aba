#pragma once

#import <AppKit/AppKit.h>

namespace zarvil::cocoa {

/// Gives back the shares in a layout's top-level objects that loading it left with its owner, where
/// the system does not do so when the owner goes. The owner's outlets keep shares of their own.
void releaseTopLevelObjects(NSArray* objects);

} // namespace zarvil::cocoa
