#import "cocoa/adapters/CocoaPorts.h"

#import "cocoa/support/Convert.h"

namespace zarvil::cocoa {

std::string CocoaStringTable::localizedString(std::string_view key) const {
    return fromCocoa([[NSBundle mainBundle] localizedStringForKey:toCocoa(key)
                                                            value:@""
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
