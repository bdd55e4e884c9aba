#import "cocoa/binding/Layout.h"

#include <vector>

namespace zarvil::cocoa {

namespace {

/// In the order of the layout, which is that of reading; those of pages that are not shown apart.
void collectViews(NSView* view, std::vector<NSView*>& shown, std::vector<NSView*>& others) {
    shown.push_back(view);
    // A field that is edited holds its editor.
    if ([view isKindOfClass:[NSControl class]])
        return;
    NSArray* subviews = [view subviews];
    for (NSUInteger index = 0; index < [subviews count]; ++index)
        collectViews([subviews objectAtIndex:index], shown, others);
    if (![view isKindOfClass:[NSTabView class]])
        return;
    NSTabView* tabs = static_cast<NSTabView*>(view);
    for (NSInteger page = 0; page < [tabs numberOfTabViewItems]; ++page) {
        NSTabViewItem* item = [tabs tabViewItemAtIndex:page];
        if (item != [tabs selectedTabViewItem])
            collectViews([item view], others, others);
    }
}

/// As the base class does: tab views lead to their pages by rules of their own.
void setNextKeyView(NSView* view, NSView* next) {
    using Setter = void (*)(id, SEL, NSView*);
    const SEL setter = @selector(setNextKeyView:);
    void* implementation = reinterpret_cast<void*>([NSView instanceMethodForSelector:setter]);
    reinterpret_cast<Setter>(implementation)(view, setter, next);
}

} // namespace

void releaseTopLevelObjects(NSArray* objects) {
    for (NSUInteger index = 0; index < [objects count]; ++index)
        [[objects objectAtIndex:index] release];
}

// Its SystemPreferences asks a pane for no key views, and its tab views link those of their pages
// by rules of their own. Those that cannot have the keyboard are skipped by the window.
void joinKeyViews(NSView* layout) {
    std::vector<NSView*> shown;
    std::vector<NSView*> others;
    if ([layout window])
        collectViews([[layout window] contentView], shown, others);
    // Those that are shown too: GNUstep forgets a former one that is set again.
    others.insert(others.end(), shown.begin(), shown.end());
    for (NSView* view : others)
        setNextKeyView(view, nil);
    for (std::size_t index = 0; index < shown.size(); ++index)
        setNextKeyView(shown[index], shown[(index + 1) % shown.size()]);
}

void leaveKeyViews(NSView* part) {
    std::vector<NSView*> views;
    if (part)
        collectViews(part, views, views);
    for (NSView* view : views)
        setNextKeyView(view, nil);
}

} // namespace zarvil::cocoa
