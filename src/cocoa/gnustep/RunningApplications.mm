#import "cocoa/adapters/CocoaWorkspace.h"

#import "cocoa/support/Convert.h"

namespace zarvil::cocoa {

std::vector<RunningApplication> CocoaWorkspace::runningApplications() const {
    std::vector<RunningApplication> found;
    NSEnumerator* running = [[[NSWorkspace sharedWorkspace] launchedApplications] objectEnumerator];
    while (NSDictionary* application = [running nextObject]) {
        NSBundle* bundle =
            [NSBundle bundleWithPath:[application objectForKey:@"NSApplicationPath"]];
        NSNumber* process = [application objectForKey:@"NSApplicationProcessIdentifier"];
        if (NSString* identifier = [bundle bundleIdentifier])
            found.push_back({fromCocoa(identifier), [process longLongValue]});
    }
    return found;
}

} // namespace zarvil::cocoa
