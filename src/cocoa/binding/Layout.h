#pragma once

#import <AppKit/AppKit.h>

namespace zarvil::cocoa {

/// Gives back the shares in a layout's top-level objects that loading it left with its owner, where
/// the system does not do so when the owner goes. The owner's outlets keep shares of their own.
void releaseTopLevelObjects(NSArray* objects);

/// Has the Tab key reach what a layout shows in its host's window, in the order of the layout,
/// where the host does not see to it. To be called when other views are shown.
void joinKeyViews(NSView* layout);
/// Of views that the layout no longer shows.
void leaveKeyViews(NSView* part);

} // namespace zarvil::cocoa
