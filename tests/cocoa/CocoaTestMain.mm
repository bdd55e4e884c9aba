#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

/// There in a build with sanitizers.
extern "C" int __lsan_do_recoverable_leak_check() __attribute__((weak));

/// Runs the tests with an application object. `tools/with-gnustep` gives them a notification
/// server of their own.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [NSApplication sharedApplication];
    const int result = RUN_ALL_TESTS();
    [pool drain];
    std::fflush(nullptr);
    const int leaks = __lsan_do_recoverable_leak_check ? __lsan_do_recoverable_leak_check() : 0;
    // The back end has destructors of its own that do not expect to be the last ones.
    std::_Exit(result ? result : leaks);
}
