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

// The base gives the keyboard to the page's first control, which may be a field.
- (void)selectTabViewItem:(NSTabViewItem*)item {
    [super selectTabViewItem:item];
    [[self window] makeFirstResponder:self];
}

- (void)keyDown:(NSEvent*)event {
    const unichar key =
        [[event characters] length] > 0 ? [[event characters] characterAtIndex:0] : 0;
    // What it holds hands its keys on too.
    const bool own = [[self window] firstResponder] == self;
    if (own && key == NSLeftArrowFunctionKey)
        [self selectPreviousTabViewItem:self];
    else if (own && key == NSRightArrowFunctionKey)
        [self selectNextTabViewItem:self];
    else
        [super keyDown:event];
}

- (void)drawRect:(NSRect)dirty {
    [super drawRect:dirty];
    if ([[self window] isKeyWindow] && [[self window] firstResponder] == self)
        NSDottedFrameRect(NSInsetRect([[self selectedTabViewItem] _tabRect], 1, 3));
}

@end
