#import "cocoa/controls/ZVTabView.h"

// GNUstep's own knows the mouse alone.
@implementation ZVTabView

- (BOOL)acceptsFirstResponder {
    return YES;
}

- (BOOL)becomeFirstResponder {
    [self setNeedsDisplay:YES];
    return [super becomeFirstResponder];
}

- (BOOL)resignFirstResponder {
    [self setNeedsDisplay:YES];
    return [super resignFirstResponder];
}

- (void)keyDown:(NSEvent*)event {
    const unichar key =
        [[event characters] length] > 0 ? [[event characters] characterAtIndex:0] : 0;
    const bool isArrow = key == NSLeftArrowFunctionKey || key == NSRightArrowFunctionKey;
    // What it holds hands its keys on too.
    if (!isArrow || [[self window] firstResponder] != self) {
        [super keyDown:event];
        return;
    }
    if (key == NSLeftArrowFunctionKey)
        [self selectPreviousTabViewItem:self];
    else
        [self selectNextTabViewItem:self];
    // The page has taken the keyboard.
    [[self window] makeFirstResponder:self];
}

- (void)drawRect:(NSRect)dirty {
    [super drawRect:dirty];
    if ([[self window] isKeyWindow] && [[self window] firstResponder] == self)
        NSDottedFrameRect(NSInsetRect([[self selectedTabViewItem] _tabRect], 1, 3));
}

@end
