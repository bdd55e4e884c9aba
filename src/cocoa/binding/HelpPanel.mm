#import "cocoa/binding/HelpPanel.h"

#import "cocoa/support/Convert.h"

#include "pane/Guidance.h"
#include "pane/Help.h"
#include "scripts/ScriptFile.h"

namespace zarvil::cocoa {

namespace {

constexpr NSRect panelFrame{{0, 0}, {420, 440}};
constexpr NSSize textInset{12, 12};

void append(NSMutableAttributedString* text, const std::string& words, NSFont* font) {
    NSDictionary* attributes = [NSDictionary dictionaryWithObject:font forKey:NSFontAttributeName];
    [text appendAttributedString:[[[NSAttributedString alloc] initWithString:toCocoa(words)
                                                                  attributes:attributes]
                                     autorelease]];
}

NSAttributedString* styled(const HelpPage& page) {
    const CGFloat size = [NSFont systemFontSize];
    NSMutableAttributedString* text = [[[NSMutableAttributedString alloc] init] autorelease];
    for (const HelpSection& section : page.sections) {
        append(text, section.heading + "\n", [NSFont boldSystemFontOfSize:size]);
        append(text, section.text + "\n\n", [NSFont systemFontOfSize:size]);
    }
    return text;
}

} // namespace

HelpPanel::HelpPanel(Guidance& guidance, const StringTable& strings)
    : guidance_(guidance), strings_(strings) {}

HelpPanel::~HelpPanel() { [panel_.get() close]; }

void HelpPanel::present() {
    if (!panel_.get()) {
        makePanel();
        page_ = guidance_.selectedTabProperty().observe([this](Tab, Transition) { showPage(); });
    }
    [panel_.get() makeKeyAndOrderFront:nil];
}

void HelpPanel::makePanel() {
    panel_ = Ref<NSPanel>::adopt([[NSPanel alloc]
        initWithContentRect:panelFrame
                  styleMask:NSTitledWindowMask | NSClosableWindowMask | NSResizableWindowMask
                    backing:NSBackingStoreBuffered
                      defer:NO]);
    [panel_.get() setReleasedWhenClosed:NO];
    const auto scroller = Ref<NSScrollView>::adopt([[NSScrollView alloc] initWithFrame:panelFrame]);
    [scroller.get() setHasVerticalScroller:YES];
    const NSSize room = [scroller.get() contentSize];
    text_ = Ref<NSTextView>::adopt(
        [[NSTextView alloc] initWithFrame:NSMakeRect(0, 0, room.width, room.height)]);
    NSTextView* text = text_.get();
    [text setEditable:NO];
    [text setTextContainerInset:textInset];
    [text setVerticallyResizable:YES];
    [text setHorizontallyResizable:NO];
    [text setAutoresizingMask:NSViewWidthSizable];
    [[text textContainer] setWidthTracksTextView:YES];
    [scroller.get() setDocumentView:text];
    [panel_.get() setContentView:scroller.get()];
    [panel_.get() center];
}

void HelpPanel::showPage() {
    const HelpPage page =
        helpOf(guidance_.selectedTabProperty().get(), kZVScriptingFolder, strings_);
    [panel_.get() setTitle:toCocoa(page.title)];
    [[text_.get() textStorage] setAttributedString:styled(page)];
    [text_.get() scrollPoint:NSZeroPoint];
}

} // namespace zarvil::cocoa
