#import "cocoa/controls/Hyperlink.h"
#import "cocoa/controls/ZVCollectionNoteView.h"
#import "cocoa/controls/ZVMessageView.h"
#import "cocoa/controls/ZVMessageViewButton.h"
#import "cocoa/controls/ZVURLButton.h"

#import "Window.h"

#include <gtest/gtest.h>

#include <array>

namespace zarvil::cocoa {

namespace {

using Pixel = std::array<int, 3>;

Pixel pixelAt(NSBitmapImageRep* picture, int x, int y) {
    const auto* pixel =
        [picture bitmapData] + y * [picture bytesPerRow] + x * [picture samplesPerPixel];
    return {pixel[0], pixel[1], pixel[2]};
}

TEST(DrawnViews, cardIsCreamAtTheTopYellowInTheMiddleAndTransparentAround) {
    const test::Window window;
    const auto note = Ref<ZVCollectionNoteView>::adopt(
        [[ZVCollectionNoteView alloc] initWithFrame:NSMakeRect(10, 10, 200, 100)]);
    [window.content() addSubview:note.get()];
    NSBitmapImageRep* picture = window.picture(note.get());
    EXPECT_GT(pixelAt(picture, 100, 10)[2], 150) << "pale at the top, 7.5 points below the edge";
    EXPECT_LT(pixelAt(picture, 100, 52)[2], 30) << "saturated in the middle";
    EXPECT_EQ(pixelAt(picture, 199, 1), pixelAt(picture, 0, 0)) << "the window around it";
}

TEST(DrawnViews, panelMakesItsPictureAnewOnlyWhenItsSizeHasChanged) {
    const test::Window window;
    const auto panel = Ref<ZVMessageView>::adopt(
        [[ZVMessageView alloc] initWithFrame:NSMakeRect(10, 10, 200, 100)]);
    [window.content() addSubview:panel.get()];
    NSImage* first = [panel.get() background];
    NSBitmapImageRep* picture = window.picture(panel.get());
    EXPECT_EQ([panel.get() background], first);
    EXPECT_LT(pixelAt(picture, 100, 39)[0], 40) << "the groove's dark line, 40 points down";
    EXPECT_GT(pixelAt(picture, 100, 10)[0], pixelAt(picture, 100, 90)[0]) << "darker downwards";
    [panel.get() setFrameSize:NSMakeSize(150, 100)];
    (void)window.picture(panel.get());
    EXPECT_NE([panel.get() background], first);
    EXPECT_TRUE(NSEqualSizes([[panel.get() background] size], NSMakeSize(150, 100)));
}

TEST(DrawnViews, pressedButtonOfAPanelIsDarkWithAWhiteTitle) {
    const test::Window window;
    const auto button =
        Ref<NSButton>::adopt([[NSButton alloc] initWithFrame:NSMakeRect(10, 10, 80, 30)]);
    const auto cell =
        Ref<ZVMessageViewButton>::adopt([[ZVMessageViewButton alloc] initTextCell:@"OK"]);
    [button.get() setCell:cell.get()];
    [window.content() addSubview:button.get()];
    const int normal = pixelAt(window.picture(button.get()), 8, 15)[0];
    [cell.get() setHighlighted:YES];
    NSBitmapImageRep* pressed = window.picture(button.get());
    EXPECT_LT(pixelAt(pressed, 8, 15)[0], normal - 50);
    int brightest = 0;
    for (int x = 20; x < 60; ++x) {
        for (int y = 5; y < 25; ++y)
            brightest = std::max(brightest, pixelAt(pressed, x, y)[0]);
    }
    EXPECT_GT(brightest, 200) << "the title";
}

TEST(Hyperlink, isBlueUnderlinedAndCentredWithoutALink) {
    for (NSString* text : {@"http://www.tessrow.example/", @""}) {
        NSAttributedString* made = [NSAttributedString hyperlinkFromString:text withURL:nil];
        ASSERT_TRUE([[made string] isEqualToString:text]);
        if ([made length] == 0)
            continue;
        NSDictionary* attributes = [made attributesAtIndex:0 effectiveRange:nullptr];
        EXPECT_TRUE([[attributes objectForKey:NSForegroundColorAttributeName]
            isEqual:[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1]]);
        EXPECT_EQ([[attributes objectForKey:NSUnderlineStyleAttributeName] intValue], 1);
        EXPECT_EQ([[attributes objectForKey:NSParagraphStyleAttributeName] alignment],
                  NSCenterTextAlignment);
        EXPECT_EQ([attributes objectForKey:NSLinkAttributeName], nil);
    }
}

} // namespace

} // namespace zarvil::cocoa
