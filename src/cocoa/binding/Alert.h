#pragma once

#import <AppKit/AppKit.h>

namespace zarvil::cocoa {

/// Shows an alert that has one button, in a modal session of its own, until the user presses it.
void runAlert(NSString* text, NSString* buttonTitle);

} // namespace zarvil::cocoa
