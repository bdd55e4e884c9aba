#import "cocoa/binding/Alert.h"

#import "cocoa/controls/Label.h"
#import "cocoa/controls/ZVSymbolView.h"
#import "cocoa/support/Ref.h"

#include <algorithm>
#include <cmath>

namespace zarvil::cocoa {

namespace {

constexpr CGFloat margin = 20;
constexpr CGFloat symbolSide = 40;
constexpr CGFloat textWidth = 340;
constexpr CGFloat textLeft = margin + symbolSide + margin;
constexpr NSSize buttonSize{100, 28};

/// A label's cell measures its text in one line.
CGFloat heightOf(NSTextField* label) {
    constexpr CGFloat inset = 4; // of a cell's text, at each side
    constexpr CGFloat endless = 1e5;
    const NSRect lines = [[label attributedStringValue]
        boundingRectWithSize:NSMakeSize(textWidth - 2 * inset, endless)
                     options:NSStringDrawingUsesLineFragmentOrigin];
    return std::ceil(lines.size.height) + 2 * inset;
}

NSButton* newButton(NSString* title) {
    NSButton* made = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [made setTitle:title];
    [made setBezelStyle:NSRoundedBezelStyle];
    [made setKeyEquivalent:@"\r"];
    [made setTarget:NSApp];
    [made setAction:@selector(stopModal)];
    return made;
}

} // namespace

/// The system's own alert leaves long text in one line, which it cuts off.
void runAlert(NSString* text, NSString* buttonTitle) {
    NSTextField* words = makeLabel();
    [words setStringValue:text];
    const CGFloat textHeight = std::max(symbolSide, heightOf(words));
    const CGFloat width = textLeft + textWidth + margin;
    const CGFloat textBottom = margin + buttonSize.height + margin;
    const CGFloat height = textBottom + textHeight + margin;
    [words setFrame:NSMakeRect(textLeft, textBottom, textWidth, textHeight)];

    ZVSymbolView* symbol = [[[ZVSymbolView alloc]
        initWithFrame:NSMakeRect(margin, height - margin - symbolSide, symbolSide, symbolSide)]
        autorelease];
    [symbol showSymbol:Symbol::Warning];
    NSButton* button = newButton(buttonTitle);
    [button setFrame:NSMakeRect(width - margin - buttonSize.width, margin, buttonSize.width,
                                buttonSize.height)];

    const auto panel =
        Ref<NSPanel>::adopt([[NSPanel alloc] initWithContentRect:NSMakeRect(0, 0, width, height)
                                                       styleMask:NSTitledWindowMask
                                                         backing:NSBackingStoreBuffered
                                                           defer:NO]);
    [panel.get() setReleasedWhenClosed:NO];
    if (NSWindow* window = [NSApp mainWindow])
        [panel.get() setTitle:[window title]];
    for (NSView* view :
         {static_cast<NSView*>(words), static_cast<NSView*>(symbol), static_cast<NSView*>(button)})
        [[panel.get() contentView] addSubview:view];
    [panel.get() setInitialFirstResponder:button];
    [panel.get() center];
    [NSApp runModalForWindow:panel.get()];
    [panel.get() close];
}

} // namespace zarvil::cocoa
