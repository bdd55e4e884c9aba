#import <AppKit/AppKit.h>
#import <PreferencePanes/PreferencePanes.h>

#include <gtest/gtest.h>

namespace {

TEST(Bundle, hostFindsThePaneInIt) {
    NSBundle* bundle = [NSBundle bundleWithPath:@ZARVIL_PANE_BUNDLE];
    ASSERT_TRUE(bundle);
    EXPECT_TRUE([[bundle bundleIdentifier] isEqualToString:@"com.Tessrow.Zarvil.Preferences"]);
    Class principal = [bundle principalClass];
    ASSERT_TRUE(principal) << "the library does not load";
    EXPECT_TRUE([principal isSubclassOfClass:[NSPreferencePane class]]);
    for (NSString* name :
         {@"KXButtonCell", @"ZVCollectionItem", @"ZVScriptCollectionItem", @"ZVMessageView",
          @"ZVMessageViewButton", @"ZVCollectionNoteView", @"ZVURLButton", @"SFAuthorizationView"})
        EXPECT_TRUE(NSClassFromString(name)) << [name UTF8String] << ", which layouts name";
    NSPreferencePane* pane = [[principal alloc] initWithBundle:bundle];
    EXPECT_TRUE(pane);
    [pane release];
}

} // namespace
