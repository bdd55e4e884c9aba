#pragma once

#import <AppKit/AppKit.h>

namespace zarvil::cocoa {

/// Draws the text of a label or button that stands in one line smaller where it is too long for its
/// place: layouts have fixed frames, and languages words of any length. `designed` is the layout's
/// own font.
void fitText(NSControl* control, NSString* text, NSFont* designed);

} // namespace zarvil::cocoa
