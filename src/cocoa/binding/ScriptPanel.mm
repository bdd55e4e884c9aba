#import "cocoa/binding/ScriptPanel.h"

#import "cocoa/controls/Label.h"
#import "cocoa/support/Call.h"
#import "cocoa/support/Convert.h"
#import "cocoa/support/Ref.h"

#include <memory>

/// Lies over the pane and takes what the user does there.
@interface ZVInputCover : NSView
@end

@implementation ZVInputCover

- (BOOL)acceptsFirstResponder {
    return YES;
}

- (void)mouseDown:(NSEvent*)event {
    (void)event;
}

- (void)rightMouseDown:(NSEvent*)event {
    (void)event;
}

- (void)scrollWheel:(NSEvent*)event {
    (void)event;
}

- (void)keyDown:(NSEvent*)event {
    (void)event;
}

@end

namespace zarvil::cocoa {

namespace {

constexpr NSRect panelFrame{{0, 0}, {400, 104}};
constexpr NSRect textFrame{{20, 56}, {360, 34}};
constexpr NSRect barFrame{{20, 22}, {240, 16}};
constexpr NSRect stopFrame{{276, 16}, {104, 28}};

class ScriptPanel {
public:
    ScriptPanel(ScriptProgress& progress, NSView* pane) : progress_(progress), pane_(pane) {
        makePanel();
        running_ = progress.runningProperty().observe(
            [this](bool running, Transition) { block(running); });
        shown_ =
            progress.windowShownProperty().observe([this](bool shown, Transition) { show(shown); });
        stopping_ = progress.stoppingProperty().observe(
            [this](bool stopping, Transition) { [stop_.get() setEnabled:!stopping]; });
    }
    ScriptPanel(const ScriptPanel&) = delete;
    ScriptPanel& operator=(const ScriptPanel&) = delete;
    ~ScriptPanel() {
        block(false);
        [stop_.get() setTarget:nil];
        [panel_.get() close];
    }

private:
    void makePanel() {
        [panel_.get() setReleasedWhenClosed:NO];
        [text_.get() setFrame:textFrame];
        [bar_.get() setIndeterminate:YES];
        [stop_.get() setTitle:toCocoa(progress_.stopTitle())];
        [stop_.get() setBezelStyle:NSRoundedBezelStyle];
        [stop_.get() setTarget:stopCall_.get()];
        [stop_.get() setAction:@selector(run:)];
        for (NSView* view : {static_cast<NSView*>(text_.get()), static_cast<NSView*>(bar_.get()),
                             static_cast<NSView*>(stop_.get())})
            [[panel_.get() contentView] addSubview:view];
    }

    void block(bool running) {
        if (!running) {
            [cover_.get() removeFromSuperview];
            return;
        }
        [cover_.get() setFrame:[pane_.get() bounds]];
        [pane_.get() addSubview:cover_.get()];
        [[pane_.get() window] makeFirstResponder:cover_.get()];
    }

    void show(bool shown) {
        if (!shown) {
            [bar_.get() stopAnimation:nil];
            [panel_.get() orderOut:nil];
            return;
        }
        [panel_.get() setTitle:[[pane_.get() window] title]];
        [text_.get() setStringValue:toCocoa(progress_.textProperty().get())];
        [stop_.get() setHidden:!progress_.canStop()];
        [panel_.get() center];
        [panel_.get() orderFront:nil];
        [bar_.get() startAnimation:nil];
    }

    template <typename Class>
    static Ref<Class> made(NSRect frame) {
        return Ref<Class>::adopt([[Class alloc] initWithFrame:frame]);
    }

    ScriptProgress& progress_;
    Ref<NSView> pane_;
    Ref<ZVInputCover> cover_ = made<ZVInputCover>(NSZeroRect);
    Ref<NSPanel> panel_ =
        Ref<NSPanel>::adopt([[NSPanel alloc] initWithContentRect:panelFrame
                                                       styleMask:NSTitledWindowMask
                                                         backing:NSBackingStoreBuffered
                                                           defer:YES]);
    Ref<NSTextField> text_{makeLabel()};
    Ref<NSProgressIndicator> bar_ = made<NSProgressIndicator>(barFrame);
    Ref<NSButton> stop_ = made<NSButton>(stopFrame);
    Ref<ZVCall> stopCall_{[ZVCall callWithFunction:[this] { progress_.stop(); }]};
    Subscription running_;
    Subscription shown_;
    Subscription stopping_;
};

} // namespace

Subscription showScriptProgress(ScriptProgress& progress, NSView* pane) {
    auto panel = std::make_shared<ScriptPanel>(progress, pane);
    return Subscription([panel]() mutable { panel.reset(); });
}

} // namespace zarvil::cocoa
