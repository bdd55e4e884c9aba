#import "cocoa/binding/Assistance.h"

namespace zarvil::cocoa {

void setAssistiveHelp(NSView* control, NSString* text) { [control setAccessibilityHelp:text]; }

void announce(NSString* words) {
    NSAccessibilityPostNotificationWithUserInfo(NSApp,
                                                NSAccessibilityAnnouncementRequestedNotification,
                                                @{NSAccessibilityAnnouncementKey : words});
}

} // namespace zarvil::cocoa
