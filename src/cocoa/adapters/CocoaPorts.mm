#import "cocoa/adapters/CocoaPorts.h"

#import "cocoa/support/Convert.h"

namespace zarvil::cocoa {

// The main bundle is the host's, which need not know of this pane: its own texts stand in for what
// is not there.
std::string CocoaStringTable::localizedString(std::string_view key) const {
    NSBundle* own = [NSBundle bundleForClass:NSClassFromString(@"Zarvil_Preferences")];
    NSString* text = [own localizedStringForKey:toCocoa(key) value:@"" table:nil];
    return fromCocoa([[NSBundle mainBundle] localizedStringForKey:toCocoa(key)
                                                            value:text
                                                            table:nil]);
}

bool CocoaUserDefaults::boolForKey(std::string_view key) const {
    return [[NSUserDefaults standardUserDefaults] boolForKey:toCocoa(key)];
}

void CocoaUserDefaults::setBool(bool value, std::string_view key) {
    NSUserDefaults* defaults = [NSUserDefaults standardUserDefaults];
    [defaults setBool:value forKey:toCocoa(key)];
    // The agent may end the host at any moment.
    [defaults synchronize];
}

std::string decimalSeparator() {
    const std::string separator =
        fromCocoa([[NSLocale currentLocale] objectForKey:NSLocaleDecimalSeparator]);
    return separator.empty() ? "." : separator;
}

} // namespace zarvil::cocoa
