#import "cocoa/adapters/CocoaWorkspace.h"

#import "cocoa/support/Convert.h"

namespace zarvil::cocoa {

std::vector<RunningApplication> CocoaWorkspace::runningApplications() const {
    std::vector<RunningApplication> found;
    NSArray* running = [[NSWorkspace sharedWorkspace] runningApplications];
    for (NSRunningApplication* application in running) {
        if (NSString* identifier = [application bundleIdentifier])
            found.push_back({fromCocoa(identifier), [application processIdentifier]});
    }
    return found;
}

} // namespace zarvil::cocoa
