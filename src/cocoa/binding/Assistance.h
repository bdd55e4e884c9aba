#pragma once

#import <AppKit/AppKit.h>

/// What assistive programs are told beyond what every control tells them.
namespace zarvil::cocoa {

/// What a control does, for users who ask.
void setAssistiveHelp(NSView* control, NSString* text);

/// Something to be said at once, wherever the user is.
void announce(NSString* words);

} // namespace zarvil::cocoa
