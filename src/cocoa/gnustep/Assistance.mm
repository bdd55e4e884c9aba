#import "cocoa/binding/Assistance.h"

/// No assistive program can reach GNUstep's applications.
namespace zarvil::cocoa {

void setAssistiveHelp(NSView* /*control*/, NSString* /*text*/) {}

void announce(NSString* /*words*/) {}

} // namespace zarvil::cocoa
