#import "cocoa/adapters/CocoaWorkspace.h"

#import "cocoa/support/Convert.h"
#import "cocoa/support/Guard.h"

#include <functional>

namespace zarvil::cocoa {

namespace {

/// What reaches other processes may raise when one of them does not answer.
bool succeeds(const std::function<BOOL()>& request) {
    BOOL done = NO;
    BOOL* result = &done;
    const std::function<BOOL()>* asked = &request;
    return !guarded([=] { *result = (*asked)(); }) && done;
}

} // namespace

bool CocoaWorkspace::canLaunchApplication(std::string_view path) const {
    return [[NSFileManager defaultManager] fileExistsAtPath:toCocoa(path)];
}

bool CocoaWorkspace::launchApplication(std::string_view path) {
    NSString* application = toCocoa(path);
    return succeeds([=] { return [[NSWorkspace sharedWorkspace] launchApplication:application]; });
}

std::string CocoaWorkspace::mainBundleIdentifier() const {
    return fromCocoa([[NSBundle mainBundle] bundleIdentifier]);
}

bool CocoaWorkspace::openURL(std::string_view url) {
    NSURL* address = [NSURL URLWithString:toCocoa(url)];
    return address && succeeds([=] { return [[NSWorkspace sharedWorkspace] openURL:address]; });
}

} // namespace zarvil::cocoa
