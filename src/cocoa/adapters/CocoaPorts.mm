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

// A table says by a digit for each number which form of a text its language asks for. A form's key
// bears that digit.
std::string CocoaStringTable::localizedCount(std::string_view one, std::string_view many,
                                             std::int64_t count) const {
    constexpr std::int64_t listed = 200;
    constexpr std::int64_t period = 100;
    constexpr std::string_view countForms = "%n";
    const std::string forms = localizedString(countForms);
    if (count < 0 || forms.size() != listed)
        return StringTable::localizedCount(one, many, count);
    const std::int64_t like = count < listed ? count : period + count % period;
    const std::string key = std::string(many) + " [" + forms[static_cast<std::size_t>(like)] + "]";
    return localizedString(key) == key ? StringTable::localizedCount(one, many, count)
                                       : StringTable::localizedCount(key, key, count);
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
