#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#import <objc/runtime.h>

#include <cstdlib>

/// For a test that operates an application from outside: in a bundle that GNUstep loads into it,
/// writes to the file ZARVIL_WINDOW_REPORT, again and again, what the pane shows and where.
@interface ZVWindowReport : NSObject {
    NSMutableDictionary* controls;
    NSInteger page;
    id pane;
}
@end

namespace {

constexpr NSTimeInterval interval = 0.02; // seconds

NSNumber* number(NSInteger value) { return [NSNumber numberWithInteger:value]; }

/// The middle of what is seen of a view, and the X window that it is in.
NSArray* placeOf(NSView* view, NSRect part) {
    NSWindow* window = [view window];
    NSView* content = [window contentView];
    const NSRect seen = [view convertRect:part toView:content];
    const auto device = reinterpret_cast<NSInteger>(
        [GSServerForWindow(window) windowDevice:static_cast<int>([window windowNumber])]);
    const auto x = static_cast<NSInteger>(NSMidX(seen));
    const auto y = static_cast<NSInteger>(NSMaxY([content bounds]) - NSMidY(seen));
    return [NSArray arrayWithObjects:number(device), number(x), number(y), nil];
}

} // namespace

@implementation ZVWindowReport

/// An outlet's name; what is none goes by its action, after the list that it stands in.
- (NSString*)nameOf:(NSView*)view {
    unsigned count = 0;
    NSString* name = nil;
    Ivar* variables = class_copyIvarList([pane class], &count);
    for (unsigned index = 0; index < count && !name; ++index)
        if (ivar_getTypeEncoding(variables[index])[0] == '@' &&
            object_getIvar(pane, variables[index]) == view)
            name = [NSString stringWithUTF8String:ivar_getName(variables[index])];
    std::free(variables);
    if (name || ![view respondsToSelector:@selector(action)] || ![(id)view action])
        return name;
    NSView* list = view;
    while (list && ![list isKindOfClass:[NSCollectionView class]])
        list = [list superview];
    NSString* action = NSStringFromSelector([(id)view action]);
    return list ? [NSString stringWithFormat:@"%@/%@", [self nameOf:list], action] : action;
}

- (NSDictionary*)described:(NSView*)view {
    NSMutableDictionary* facts = [NSMutableDictionary dictionary];
    [facts setObject:number(page) forKey:@"page"];
    [facts setObject:number([view isHidden]) forKey:@"hidden"];
    [facts setObject:number(static_cast<NSInteger>([[view subviews] count])) forKey:@"parts"];
    const NSRect seen = [view visibleRect];
    if ([view window] && ![view isHiddenOrHasHiddenAncestor] && !NSIsEmptyRect(seen))
        [facts setObject:placeOf(view, seen) forKey:@"place"];
    if ([view isKindOfClass:[NSControl class]]) {
        [facts setObject:number([(NSControl*)view isEnabled]) forKey:@"enabled"];
        const bool isEdited = [(NSControl*)view currentEditor];
        [facts setObject:number(isEdited || [view acceptsFirstResponder]) forKey:@"keys"];
        [facts setObject:[NSString stringWithFormat:@"%@", [(NSControl*)view stringValue]]
                  forKey:@"text"];
    }
    if ([view isKindOfClass:[NSButton class]])
        [facts setObject:number([(NSButton*)view state]) forKey:@"state"];
    return facts;
}

- (void)visit:(NSView*)view {
    if ([view respondsToSelector:@selector(target)] &&
        [[(id)view target] isKindOfClass:NSClassFromString(@"Zarvil_Preferences")])
        pane = [(id)view target];
    NSString* name = [self nameOf:view];
    if (name && ![controls objectForKey:name])
        [controls setObject:[self described:view] forKey:name];
    if (![view isKindOfClass:[NSTabView class]]) {
        NSEnumerator* subviews = [[view subviews] objectEnumerator];
        while (NSView* subview = [subviews nextObject])
            [self visit:subview];
        return;
    }
    // A page's label goes by the page's number.
    NSTabView* tabs = static_cast<NSTabView*>(view);
    const NSInteger pages = [tabs numberOfTabViewItems];
    for (page = 0; page < pages; ++page) {
        NSTabViewItem* item = [tabs tabViewItemAtIndex:page];
        [controls setObject:[NSDictionary dictionaryWithObject:placeOf(tabs, [item _tabRect])
                                                        forKey:@"place"]
                     forKey:[number(page) stringValue]];
        [self visit:[item view]];
    }
    page = -1;
}

- (void)write {
    controls = [NSMutableDictionary dictionary];
    NSEnumerator* windows = [[NSApp windows] objectEnumerator];
    while (NSWindow* window = [windows nextObject]) {
        page = -1;
        if ([window isVisible])
            [self visit:[window contentView]];
    }
    id focus = [[NSApp keyWindow] firstResponder];
    if ([focus isKindOfClass:[NSText class]] && [focus isFieldEditor])
        focus = [focus delegate];
    NSString* focused = [focus isKindOfClass:[NSView class]] ? [self nameOf:focus] : nil;
    const bool pressed =
        [[[NSRunLoop currentRunLoop] currentMode] isEqualToString:NSEventTrackingRunLoopMode];
    NSDictionary* report =
        [NSDictionary dictionaryWithObjectsAndKeys:controls, @"controls", focused ? focused : @"",
                                                   @"focus", number(pressed), @"pressed", nil];
    NSData* text = [NSJSONSerialization dataWithJSONObject:report options:0 error:NULL];
    [text writeToFile:[NSString stringWithUTF8String:std::getenv("ZARVIL_WINDOW_REPORT")]
           atomically:YES];
}

- (id)init {
    NSTimer* timer = [NSTimer timerWithTimeInterval:interval
                                             target:self
                                           selector:@selector(write)
                                           userInfo:nil
                                            repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSModalPanelRunLoopMode];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSEventTrackingRunLoopMode];
    return self;
}

@end
