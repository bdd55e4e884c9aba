#import "cocoa/binding/Alert.h"

#import "cocoa/support/Ref.h"

namespace zarvil::cocoa {

void runAlert(NSString* text, NSString* buttonTitle) {
    const auto alert = Ref<NSAlert>::adopt([[NSAlert alloc] init]);
    [alert.get() setAlertStyle:NSWarningAlertStyle];
    [alert.get() setMessageText:text];
    [alert.get() addButtonWithTitle:buttonTitle];
    [alert.get() runModal];
}

} // namespace zarvil::cocoa
