#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

/// Runs the tests with an application object. `tools/with-gnustep` gives them a notification
/// server of their own.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [NSApplication sharedApplication];
    const int result = RUN_ALL_TESTS();
    [pool drain];
    // The back end has destructors of its own that do not expect to be the last ones.
    std::fflush(nullptr);
    std::_Exit(result);
}
